#include "hardware/TirvanaAnalogInterfaceConfigXmlSerializer.h"

#include <new>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/LimitedObjPtr.h>
#include <velquin/UniqueObjPtr.h>

#include "hardware/TirvanaAnalogInterfaceConfig.h"
#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaAnalogInterfaceConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for analog interface ", "] for analog interface " };

} // namespace

InterfaceConfig* TirvanaAnalogInterfaceConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                                                                  const BoardConfig& in_boardConfig ) try {
    UniqueObjPtr<InterfaceConfig> pInterfaceConfig(
        AnalogInterfaceConfigXmlSerializer::read( in_pElement, in_xmlConfig, in_boardConfig ) );
    if ( pInterfaceConfig.isNull() )
        return nullptr;
    auto pTirvanaAnalogInterfaceConfig =
        dynamicOwnerCast<TirvanaAnalogInterfaceConfig>( std::move( pInterfaceConfig ) );
    if ( !VELQUIN_ASSERT( !pTirvanaAnalogInterfaceConfig.isNull() ) )
        return nullptr;

    const ElementReader reader( in_pElement, getLogger(), WORDING );
    if ( !reader.require( "tirpipeInterface", LEADING_DECIMAL, *pTirvanaAnalogInterfaceConfig,
                          &TirvanaAnalogInterfaceConfig::setTirpipeInterface ) )
        return nullptr;
    return pTirvanaAnalogInterfaceConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaAnalogInterfaceConfigXmlSerializer::write( xmlNode* const in_pBoardElement,
                                                       const InterfaceConfig& in_interfaceConfig ) try {
    const LimitedObjPtr<const TirvanaAnalogInterfaceConfig> pIfConfig(
        dynamic_cast<const TirvanaAnalogInterfaceConfig*>( &in_interfaceConfig ) );
    if ( !VELQUIN_ASSERT( !pIfConfig.isNull() ) )
        return false;
    xmlNode* const pElement = addInterfaceElement( in_pBoardElement, getLogger() );
    return pElement && AnalogInterfaceConfigXmlSerializer::write( pElement, in_interfaceConfig ) &&
           ElementWriter( pElement, getLogger() ).addNumber( "tirpipeInterface", pIfConfig->getTirpipeInterface() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

InterfaceConfig* TirvanaAnalogInterfaceConfigXmlSerializer::newInterfaceConfig() {
    return new ( std::nothrow ) TirvanaAnalogInterfaceConfig();
}

} // namespace Velquin::Pstn

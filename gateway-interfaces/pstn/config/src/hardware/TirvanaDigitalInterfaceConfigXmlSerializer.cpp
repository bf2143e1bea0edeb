#include "hardware/TirvanaDigitalInterfaceConfigXmlSerializer.h"

#include <new>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/LimitedObjPtr.h>
#include <velquin/UniqueObjPtr.h>

#include "hardware/TirvanaDigitalInterfaceConfig.h"
#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalInterfaceConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for digital interface  ", "] for digital interface " };

} // namespace

InterfaceConfig* TirvanaDigitalInterfaceConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                                                                   const BoardConfig& in_boardConfig ) try {
    UniqueObjPtr<InterfaceConfig> pInterfaceConfig(
        DigitalInterfaceConfigXmlSerializer::read( in_pElement, in_xmlConfig, in_boardConfig ) );
    if ( pInterfaceConfig.isNull() )
        return nullptr;
    auto pTirvanaDigitalInterfaceConfig =
        dynamicOwnerCast<TirvanaDigitalInterfaceConfig>( std::move( pInterfaceConfig ) );
    if ( !VELQUIN_ASSERT( !pTirvanaDigitalInterfaceConfig.isNull() ) )
        return nullptr;

    const ElementReader reader( in_pElement, getLogger(), WORDING );
    if ( !reader.requireKey( "tirpipe", LEADING_DECIMAL, *pTirvanaDigitalInterfaceConfig,
                             &TirvanaDigitalInterfaceConfig::setTirpipe ) )
        return nullptr;
    return pTirvanaDigitalInterfaceConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaDigitalInterfaceConfigXmlSerializer::write( xmlNode* const in_pBoardElement,
                                                        const InterfaceConfig& in_interfaceConfig ) try {
    const LimitedObjPtr<const TirvanaDigitalInterfaceConfig> pDigitalIfConfig(
        dynamic_cast<const TirvanaDigitalInterfaceConfig*>( &in_interfaceConfig ) );
    if ( !VELQUIN_ASSERT( !pDigitalIfConfig.isNull() ) )
        return false;
    xmlNode* const pElement = addInterfaceElement( in_pBoardElement, getLogger() );
    return pElement && DigitalInterfaceConfigXmlSerializer::write( pElement, in_interfaceConfig ) &&
           ElementWriter( pElement, getLogger() ).addNumber( "tirpipe", pDigitalIfConfig->getTirpipe() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

InterfaceConfig* TirvanaDigitalInterfaceConfigXmlSerializer::newInterfaceConfig() {
    return new ( std::nothrow ) TirvanaDigitalInterfaceConfig();
}

} // namespace Velquin::Pstn

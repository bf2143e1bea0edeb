#include "hardware/TirvanaAnalogBoardConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>

#include "hardware/BoardInterfaces.h"
#include "hardware/TirvanaAnalogBoardConfig.h"
#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaAnalogBoardConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for analog board  ", "] for analog board  " };
constexpr InterfaceAssertions ASSERTIONS{ "!pInterfaceConfig.isNull()", "!pAnalogInterfaceConfig.isNull()" };

} // namespace

BoardConfig* TirvanaAnalogBoardConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<BoardConfig> pBoardConfig( AnalogBoardConfigXmlSerializer::read( in_pElement, in_xmlConfig ) );
    if ( pBoardConfig.isNull() )
        return nullptr;
    auto pTirvanaAnalogBoardConfig = dynamicOwnerCast<TirvanaAnalogBoardConfig>( std::move( pBoardConfig ) );
    if ( !VELQUIN_ASSERT( !pTirvanaAnalogBoardConfig.isNull() ) )
        return nullptr;

    const ElementReader reader( in_pElement, getLogger(), WORDING );
    if ( !reader.requireKey( "tirpipe", WHOLE_DECIMAL, *pTirvanaAnalogBoardConfig,
                             &TirvanaAnalogBoardConfig::setTirpipe ) ||
         !readInterfaces<AnalogKind>( in_pElement, in_xmlConfig, *pTirvanaAnalogBoardConfig, m_interfaceXmlSerializer,
                                      ASSERTIONS ) )
        return nullptr;
    return pTirvanaAnalogBoardConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaAnalogBoardConfigXmlSerializer::write( xmlNode* const in_pParent, const BoardConfig& in_boardConfig ) try {
    const auto* const pAnalogBoardConfig = dynamic_cast<const TirvanaAnalogBoardConfig*>( &in_boardConfig );
    if ( !VELQUIN_ASSERT( pAnalogBoardConfig ) )
        return false;
    xmlNode* const pElement = addChildElement( in_pParent, "tirvanaAnalogBoard" );
    if ( !pElement ) {
        VELQUIN_REPORT_ERROR( getLogger(), "Can not add analog boards XML element." );
        return false;
    }
    return AnalogBoardConfigXmlSerializer::write( pElement, in_boardConfig ) &&
           ElementWriter( pElement, getLogger() ).addNumber( "tirpipe", pAnalogBoardConfig->getTirpipe() ) &&
           writeInterfaces<AnalogKind>( pElement, *pAnalogBoardConfig, m_interfaceXmlSerializer,
                                        "no Tirvana analog interface to configure for board ", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

BoardConfig* TirvanaAnalogBoardConfigXmlSerializer::newBoardConfig() {
    return new ( std::nothrow ) TirvanaAnalogBoardConfig();
}

} // namespace Velquin::Pstn

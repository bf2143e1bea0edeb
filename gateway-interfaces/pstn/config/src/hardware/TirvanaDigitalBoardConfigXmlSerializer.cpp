#include "hardware/TirvanaDigitalBoardConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>

#include "hardware/BoardInterfaces.h"
#include "hardware/TirvanaDigitalBoardConfig.h"
#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalBoardConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for tirvana digital board  ", "] for tirvana digital board  " };
constexpr InterfaceAssertions ASSERTIONS{ nullptr, "!pDigitalInterfaceConfig.isNull()" };

/// Sets the flag of the interface that the board's attribute names; without the attribute, does nothing.
bool readPrimaryClockReference( const ElementReader& in_reader, const TirvanaDigitalBoardConfig& in_board ) {
    AttributeText text;
    if ( !in_reader.findText( "primaryClockReference", text ) )
        return true;
    unsigned int uInterfaceId = 0;
    if ( !in_reader.take( text, "primaryClockReference", WHOLE_DECIMAL, uInterfaceId ) )
        return AttributeReader::passOver();
    const auto hInterface =
        dynamicHandleCast<TirvanaDigitalInterfaceConfig>( in_board.getDigitalInterfaceConfig( uInterfaceId ) );
    if ( hInterface.isNull() ) {
        in_reader.reportInvalid( "primaryClockReference", text.view(), "Specified interface ID value does not exist",
                                 Rules::UNKNOWN_INTERFACE );
        return AttributeReader::passOver();
    }
    hInterface->setPrimaryClockReference( true );
    return true;
}

} // namespace

BoardConfig* TirvanaDigitalBoardConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<BoardConfig> pBoardConfig( DigitalBoardConfigXmlSerializer::read( in_pElement, in_xmlConfig ) );
    if ( pBoardConfig.isNull() )
        return nullptr;
    auto pTirvanaDigitalBoardConfig = dynamicOwnerCast<TirvanaDigitalBoardConfig>( std::move( pBoardConfig ) );
    if ( !VELQUIN_ASSERT( !pTirvanaDigitalBoardConfig.isNull() ) )
        return nullptr;

    const ElementReader reader( in_pElement, getLogger(), WORDING );
    if ( !readInterfaces<DigitalKind>( in_pElement, in_xmlConfig, *pTirvanaDigitalBoardConfig, m_interfaceXmlSerializer,
                                       ASSERTIONS ) ||
         !readPrimaryClockReference( reader, *pTirvanaDigitalBoardConfig ) )
        return nullptr;
    return pTirvanaDigitalBoardConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaDigitalBoardConfigXmlSerializer::write( xmlNode* const in_pParent, const BoardConfig& in_boardConfig ) try {
    const LimitedObjPtr<const DigitalBoardConfig> pDigitalBoardConfig(
        dynamic_cast<const DigitalBoardConfig*>( &in_boardConfig ) );
    if ( !VELQUIN_ASSERT( !pDigitalBoardConfig.isNull() ) )
        return false;
    xmlNode* const pElement = addChildElement( in_pParent, "tirvanaDigitalBoard" );
    if ( !pElement ) {
        VELQUIN_REPORT_ERROR( getLogger(), "Can not add digital boards XML element." );
        return false;
    }
    return DigitalBoardConfigXmlSerializer::write( pElement, in_boardConfig ) &&
           writeInterfaces<DigitalKind>( pElement, *pDigitalBoardConfig, m_interfaceXmlSerializer,
                                         "no Tirvana digital interface to add for board ", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

BoardConfig* TirvanaDigitalBoardConfigXmlSerializer::newBoardConfig() {
    return new ( std::nothrow ) TirvanaDigitalBoardConfig();
}

} // namespace Velquin::Pstn

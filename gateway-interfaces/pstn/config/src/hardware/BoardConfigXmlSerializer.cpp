#include "hardware/BoardConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "hardware/DisplayName.h"
#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( BoardConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for board  ", "] for board  " };
constexpr TextRule DISPLAY_NAME{ "Display name may contain space, '-', '_' and alpha numeric characters.",
                                 DISPLAY_NAME_ADVICE };

} // namespace

BoardConfig* BoardConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    UniqueObjPtr<BoardConfig> pBoardConfig( newBoardConfig() );
    if ( !VELQUIN_ASSERT( !pBoardConfig.isNull() ) )
        return nullptr;

    if ( !reader.requireKey( "ID", WHOLE_DECIMAL, *pBoardConfig, &BoardConfig::setId ) )
        return nullptr;
    const bool bRead = reader.require( "displayName", DISPLAY_NAME, *pBoardConfig, &BoardConfig::setDisplayName ) &&
                       reader.require( "model", ANY_TEXT, *pBoardConfig, &BoardConfig::setModel ) &&
                       reader.accept( "pciSlot", WHOLE_DECIMAL, *pBoardConfig, &BoardConfig::setPCISlot ) &&
                       reader.accept( "pciBus", WHOLE_DECIMAL, *pBoardConfig, &BoardConfig::setPCIBus );
    return bRead ? pBoardConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool BoardConfigXmlSerializer::write( xmlNode* const in_pElement, const BoardConfig& in_boardConfig ) try {
    const ElementWriter writer( in_pElement, getLogger() );
    return writer.addNumber( "ID", in_boardConfig.getId() ) &&
           writer.addText( "displayName", in_boardConfig.getDisplayName() ) &&
           writer.addText( "model", in_boardConfig.getModel() ) &&
           ( !in_boardConfig.getPCISlot().isSet() ||
             writer.addNumber( "pciSlot", in_boardConfig.getPCISlot().get() ) ) &&
           ( !in_boardConfig.getPCIBus().isSet() || writer.addNumber( "pciBus", in_boardConfig.getPCIBus().get() ) );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

BoardConfig* BoardConfigXmlSerializer::newBoardConfig() {
    return nullptr;
}

} // namespace Velquin::Pstn

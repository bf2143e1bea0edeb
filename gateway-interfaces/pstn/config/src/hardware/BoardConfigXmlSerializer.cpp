#include "hardware/BoardConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( BoardConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for board  ", "] for board  " };
constexpr std::string_view DISPLAY_NAME_HINT = "Display name may contain space, '-', '_' and alpha numeric characters.";

} // namespace

BoardConfig* BoardConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    UniqueObjPtr<BoardConfig> pBoardConfig( newBoardConfig() );
    if ( !VELQUIN_ASSERT( !pBoardConfig.isNull() ) )
        return nullptr;

    unsigned int uId = 0;
    if ( !reader.requireNumber( "ID", WHOLE_DECIMAL, uId ) )
        return nullptr;
    pBoardConfig->setId( uId );

    AttributeText displayName;
    if ( !reader.requireText( "displayName", displayName ) )
        return nullptr;
    if ( !pBoardConfig->setDisplayName( displayName.c_str() ) ) {
        reader.reportInvalid( "displayName", displayName.view(), DISPLAY_NAME_HINT );
        return nullptr;
    }

    AttributeText model;
    if ( !reader.requireText( "model", model ) || !pBoardConfig->setModel( model.c_str() ) )
        return nullptr;

    unsigned long long ullPCI = 0;
    ReadResult eResult = reader.findNumber( "pciSlot", WHOLE_DECIMAL, ullPCI );
    if ( eResult == ReadResult::WRONG )
        return nullptr;
    if ( eResult == ReadResult::READ )
        pBoardConfig->setPCISlot( ullPCI );
    eResult = reader.findNumber( "pciBus", WHOLE_DECIMAL, ullPCI );
    if ( eResult == ReadResult::WRONG )
        return nullptr;
    if ( eResult == ReadResult::READ )
        pBoardConfig->setPCIBus( ullPCI );
    return pBoardConfig.release();
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

#include "hardware/InterfaceConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "hardware/BoardConfig.h"
#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( InterfaceConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for interface  ", "] for interface  " };
constexpr std::string_view DISPLAY_NAME_HINT =
    "Display name may contains spaces, '-', '_' and alpha numeric characters.";

} // namespace

InterfaceConfig* InterfaceConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig&,
                                                     const BoardConfig& in_boardConfig ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    UniqueObjPtr<InterfaceConfig> pInterfaceConfig( newInterfaceConfig() );
    if ( !VELQUIN_ASSERT( !pInterfaceConfig.isNull() ) || !pInterfaceConfig->setBoardConfig( &in_boardConfig ) )
        return nullptr;

    unsigned int uId = 0;
    if ( !reader.requireNumber( "ID", LEADING_DECIMAL, uId ) )
        return nullptr;
    pInterfaceConfig->setId( uId );

    AttributeText displayName;
    if ( !reader.requireText( "displayName", displayName ) )
        return nullptr;
    if ( !pInterfaceConfig->setDisplayName( displayName.c_str() ) ) {
        reader.reportInvalid( "displayName", displayName.view(), DISPLAY_NAME_HINT );
        return nullptr;
    }
    // The identifiers are composed at their first use; the model may be shared between threads by then.
    if ( *pInterfaceConfig->getUniqueId( true ) == '\0' || *pInterfaceConfig->getUniqueId( false ) == '\0' )
        return nullptr; // memory ended, which is told
    return pInterfaceConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool InterfaceConfigXmlSerializer::write( xmlNode* const in_pElement, const InterfaceConfig& in_interfaceConfig ) try {
    const ElementWriter writer( in_pElement, getLogger() );
    return writer.addNumber( "ID", in_interfaceConfig.getId() ) &&
           writer.addText( "displayName", in_interfaceConfig.getDisplayName() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

InterfaceConfig* InterfaceConfigXmlSerializer::newInterfaceConfig() {
    return nullptr;
}

xmlNode* InterfaceConfigXmlSerializer::addInterfaceElement( xmlNode* in_pBoardElement, const Logger& in_logger ) {
    xmlNode* const pElement = addChildElement( in_pBoardElement, "interface" );
    if ( !pElement )
        VELQUIN_REPORT_ERROR( in_logger, "Can not add interface XML element." );
    return pElement;
}

} // namespace Velquin::Pstn

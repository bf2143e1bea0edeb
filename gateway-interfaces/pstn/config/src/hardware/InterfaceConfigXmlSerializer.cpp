#include "hardware/InterfaceConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "hardware/BoardConfig.h"
#include "hardware/DisplayName.h"
#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( InterfaceConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for interface  ", "] for interface  " };
constexpr TextRule DISPLAY_NAME{ "Display name may contains spaces, '-', '_' and alpha numeric characters.",
                                 DISPLAY_NAME_ADVICE };

} // namespace

InterfaceConfig* InterfaceConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig&,
                                                     const BoardConfig& in_boardConfig ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    UniqueObjPtr<InterfaceConfig> pInterfaceConfig( newInterfaceConfig() );
    if ( !VELQUIN_ASSERT( !pInterfaceConfig.isNull() ) || !pInterfaceConfig->setBoardConfig( &in_boardConfig ) )
        return nullptr;

    if ( !reader.requireKey( "ID", LEADING_DECIMAL, *pInterfaceConfig, &InterfaceConfig::setId ) )
        return nullptr;
    if ( !reader.require( "displayName", DISPLAY_NAME, *pInterfaceConfig, &InterfaceConfig::setDisplayName ) )
        return nullptr;
    // The first call composes an identifier, and must come before threads share the model.
    if ( *pInterfaceConfig->getUniqueId( true ) == '\0' || *pInterfaceConfig->getUniqueId( false ) == '\0' )
        return nullptr; // memory ended, and the log says so
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

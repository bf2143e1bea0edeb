#include "hardware/AnalogInterfaceConfigXmlSerializer.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/LimitedObjPtr.h>
#include <velquin/UniqueObjPtr.h>

#include "hardware/AnalogInterfaceConfig.h"
#include "reading/ElementReader.h"
#include "reading/ElementWriter.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogInterfaceConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for analog interface ", "] for analog interface " };
constexpr auto MEDIA_TYPE = hinted( Keywords::ANALOG_MEDIA_TYPE, "Valid values are FXO and FXS" );

} // namespace

InterfaceConfig* AnalogInterfaceConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                                                           const BoardConfig& in_boardConfig ) try {
    UniqueObjPtr<InterfaceConfig> pInterfaceConfig(
        InterfaceConfigXmlSerializer::read( in_pElement, in_xmlConfig, in_boardConfig ) );
    if ( pInterfaceConfig.isNull() )
        return nullptr;
    auto pAnalogInterfaceConfig = dynamicOwnerCast<AnalogInterfaceConfig>( std::move( pInterfaceConfig ) );
    if ( !VELQUIN_ASSERT( !pAnalogInterfaceConfig.isNull() ) )
        return nullptr;

    const ElementReader reader( in_pElement, getLogger(), WORDING );
    AnalogInterfaceConfig& config = *pAnalogInterfaceConfig;
    if ( !reader.requireKey( "type", MEDIA_TYPE, config, &AnalogInterfaceConfig::setMediaType ) )
        return nullptr;
    const bool bRead =
        config.getMediaType() == AnalogInterfaceConfig::MediaType::FXS
            ? reader.require( "phoneNumber", ANY_TEXT, config, &AnalogInterfaceConfig::setPhoneNumber ) &&
                  reader.require( "callerName", ANY_TEXT, config, &AnalogInterfaceConfig::setCallerName )
            : config.setPhoneNumber( "" ) && config.setCallerName( "" );
    return bRead ? pAnalogInterfaceConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AnalogInterfaceConfigXmlSerializer::write( xmlNode* const in_pElement,
                                                const InterfaceConfig& in_interfaceConfig ) try {
    const LimitedObjPtr<const AnalogInterfaceConfig> pIfConfig(
        dynamic_cast<const AnalogInterfaceConfig*>( &in_interfaceConfig ) );
    if ( !VELQUIN_ASSERT( !pIfConfig.isNull() ) )
        return false;
    const ElementWriter writer( in_pElement, getLogger() );
    return InterfaceConfigXmlSerializer::write( in_pElement, in_interfaceConfig ) &&
           writer.addText( "type", Keywords::ANALOG_MEDIA_TYPE.keywordOf( pIfConfig->getMediaType() ).data() ) &&
           writer.addText( "phoneNumber", pIfConfig->getPhoneNumber() ) &&
           writer.addText( "callerName", pIfConfig->getCallerName() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

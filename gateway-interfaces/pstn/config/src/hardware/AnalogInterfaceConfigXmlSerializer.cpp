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
    auto eMediaType = AnalogInterfaceConfig::MediaType::FXO;
    if ( !reader.requireKeyword( "type", Keywords::ANALOG_MEDIA_TYPE, eMediaType, "Valid values are FXO and FXS" ) )
        return nullptr;
    pAnalogInterfaceConfig->setMediaType( eMediaType );

    AttributeText phoneNumber;
    AttributeText callerName;
    if ( eMediaType == AnalogInterfaceConfig::MediaType::FXS &&
         ( !reader.requireText( "phoneNumber", phoneNumber ) || !reader.requireText( "callerName", callerName ) ) )
        return nullptr;
    if ( !pAnalogInterfaceConfig->setPhoneNumber( phoneNumber.c_str() ) ||
         !pAnalogInterfaceConfig->setCallerName( callerName.c_str() ) )
        return nullptr;
    return pAnalogInterfaceConfig.release();
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

#include "physical/AnalogInterfacePhysicalConfigXmlSerializer.h"

#include <new>

#include "loading/XmlConfig.h"
#include "physical/ApplyTo.h"
#include "physical/CountryMap.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogInterfacePhysicalConfigXmlSerializer );

TSHandle<InterfacePhysicalConfig> AnalogInterfacePhysicalConfigXmlSerializer::read( xmlNode* const in_pElement,
                                                                                    XmlConfig& in_xmlConfig ) try {
    auto hInterfacePhysicalConfig = InterfacePhysicalConfigXmlSerializer::read( in_pElement, in_xmlConfig );
    if ( hInterfacePhysicalConfig.isNull() )
        return {};
    const auto hAnalogInterfacePhysicalConfig =
        dynamicHandleCast<AnalogInterfacePhysicalConfig>( hInterfacePhysicalConfig );
    if ( !VELQUIN_ASSERT( !hAnalogInterfacePhysicalConfig.isNull() ) )
        return {};

    const ElementReader reader( in_pElement, getLogger(), PHYSICAL_CHILD_WORDING );
    xmlNode* const pAnalog = reader.requireChild( "analog" );
    if ( pAnalog ? !readAnalog( pAnalog, *hAnalogInterfacePhysicalConfig ) : !AttributeReader::passOver() )
        return {};
    const auto list = [&hAnalogInterfacePhysicalConfig]( AnalogInterfaceConfig& in_interface ) {
        return hAnalogInterfacePhysicalConfig->addApplyToAnalogInterface( &in_interface );
    };
    if ( !applyToInterfaces<AnalogKind>( reader, in_xmlConfig, getLogger(), hAnalogInterfacePhysicalConfig, list ) )
        return {};
    return hInterfacePhysicalConfig;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool AnalogInterfacePhysicalConfigXmlSerializer::readAnalog( xmlNode* in_pAnalog,
                                                             AnalogInterfacePhysicalConfig& out_config ) {
    const ElementReader reader( in_pAnalog, getLogger(), PHYSICAL_SETTING_WORDING );
    AttributeText variant;
    if ( !reader.requireText( "variant", variant ) )
        return AttributeReader::passOver();
    const Country::Type eVariant = CountryMap::getInstance().getType( variant.c_str() );
    if ( !VELQUIN_ASSERT( eVariant != Country::INVALID ) )
        return AttributeReader::passOver();
    out_config.setVariantType( eVariant );
    return true;
}

bool AnalogInterfacePhysicalConfigXmlSerializer::write( xmlNode* const, const InterfacePhysicalConfig& ) {
    return reportNotImplemented( getLogger(), "AnalogInterfacePhysicalConfigXmlSerializer::write" );
}

InterfacePhysicalConfig* AnalogInterfacePhysicalConfigXmlSerializer::newInterfacePhysicalConfig() {
    return new ( std::nothrow ) AnalogInterfacePhysicalConfig();
}

} // namespace Velquin::Pstn

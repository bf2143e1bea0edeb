#include "physical/DigitalInterfacePhysicalConfigXmlSerializer.h"

#include <new>

#include <velquin/XML.h>

#include "loading/XmlConfig.h"
#include "physical/ApplyTo.h"
#include "physical/DChannelConfigXmlSerializer.h"
#include "physical/DigitalInterfacePhysicalConfig.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalInterfacePhysicalConfigXmlSerializer );

namespace {

using MediaType = DigitalInterfacePhysicalConfig::MediaType;

/// The first child of the first name or, without one, the first child of the second name.
xmlNode* findEither( xmlNode* in_pElement, const char* in_szName, const char* in_szOtherName ) {
    xmlNode* const pChild = XML::findFirstElement( in_pElement, in_szName );
    return pChild ? pChild : XML::findFirstElement( in_pElement, in_szOtherName );
}

bool readLine( const ElementReader& in_reader, DigitalInterfacePhysicalConfig& out_config ) {
    using Config = DigitalInterfacePhysicalConfig;
    const bool bRead =
        in_reader.require( "framing", bySchema( Keywords::FRAMING ), out_config, &Config::setFraming ) &&
        in_reader.require( "lineEncoding", bySchema( Keywords::LINE_ENCODING ), out_config,
                           &Config::setLineEncoding ) &&
        in_reader.require( "clocking", bySchema( Keywords::DIGITAL_CLOCKING ), out_config, &Config::setClockingMode ) &&
        in_reader.require( "loopbackMode", bySchema( Keywords::LOOPBACK_MODE ), out_config,
                           &Config::setLoopbackMode ) &&
        in_reader.accept( "receiverSensitivity", bySchema( Keywords::RECEIVER_SENSITIVITY ), out_config,
                          &Config::setRxSensitivity ) &&
        in_reader.accept( "highImpedance", bySchema( Keywords::ENABLED_DISABLED ), out_config,
                          &Config::enableHighImpedance );
    if ( !bRead )
        return false;
    if ( out_config.getMediaType() == MediaType::T1 )
        return in_reader.require( "LBO", bySchema( Keywords::LINE_BUILD_OUT ), out_config, &Config::setLBOMode );
    return in_reader.require( "E1Signaling", bySchema( Keywords::E1_SIGNALING ), out_config,
                              &Config::setE1Signaling ) &&
           in_reader.require( "E1Termination", bySchema( Keywords::E1_TERMINATION ), out_config,
                              &Config::setE1Termination );
}

/// Reads the D-channel of the span, if it has one.
bool readDChannel( xmlNode* in_pSpan, XmlConfig& in_xmlConfig, DigitalInterfacePhysicalConfig& out_config ) {
    xmlNode* const pDChannel = findEither( in_pSpan, "DChannelT1", "DChannelE1" );
    if ( !pDChannel )
        return true;
    DChannelConfigXmlSerializer dChannelXmlSerializer;
    DChannelConfig* const pDChannelConfig = dChannelXmlSerializer.read( pDChannel, in_xmlConfig );
    return out_config.setDChannelConfig( pDChannelConfig );
}

bool readSpan( xmlNode* in_pSpan, XmlConfig& in_xmlConfig, const Logger& in_logger,
               DigitalInterfacePhysicalConfig& out_config ) {
    const ElementReader reader( in_pSpan, in_logger, PHYSICAL_SETTING_WORDING );
    const bool bT1 = std::string_view( reader.getName() ) == "digitalT1";
    out_config.setMediaType( bT1 ? MediaType::T1 : MediaType::E1 );
    return readLine( reader, out_config ) && readDChannel( in_pSpan, in_xmlConfig, out_config );
}

} // namespace

TSHandle<InterfacePhysicalConfig> DigitalInterfacePhysicalConfigXmlSerializer::read( xmlNode* const in_pElement,
                                                                                     XmlConfig& in_xmlConfig ) try {
    auto hInterfacePhysicalConfig = InterfacePhysicalConfigXmlSerializer::read( in_pElement, in_xmlConfig );
    if ( hInterfacePhysicalConfig.isNull() )
        return {};
    const auto hDigitalInterfacePhysicalConfig =
        dynamicHandleCast<DigitalInterfacePhysicalConfig>( hInterfacePhysicalConfig );
    if ( !VELQUIN_ASSERT( !hDigitalInterfacePhysicalConfig.isNull() ) )
        return {};

    const ElementReader reader( in_pElement, getLogger(), PHYSICAL_CHILD_WORDING );
    xmlNode* const pSpan = findEither( in_pElement, "digitalT1", "digitalE1" );
    if ( !pSpan )
        reader.reportMissingChild( "digitalT1 or digitalE1" );
    if ( pSpan ? !readSpan( pSpan, in_xmlConfig, getLogger(), *hDigitalInterfacePhysicalConfig )
               : !AttributeReader::passOver() )
        return {};
    if ( !applyToInterfaces<DigitalKind>( reader, in_xmlConfig, getLogger(), hDigitalInterfacePhysicalConfig,
                                          []( const DigitalInterfaceConfig& ) { return true; } ) )
        return {};
    return hInterfacePhysicalConfig;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool DigitalInterfacePhysicalConfigXmlSerializer::write( xmlNode* const, const InterfacePhysicalConfig& ) {
    return reportNotImplemented( getLogger(), "DigitalInterfacePhysicalConfigXmlSerializer::write" );
}

InterfacePhysicalConfig* DigitalInterfacePhysicalConfigXmlSerializer::newInterfacePhysicalConfig() {
    return new ( std::nothrow ) DigitalInterfacePhysicalConfig();
}

} // namespace Velquin::Pstn

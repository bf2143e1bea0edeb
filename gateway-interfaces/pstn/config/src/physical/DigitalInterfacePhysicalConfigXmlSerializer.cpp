#include "physical/DigitalInterfacePhysicalConfigXmlSerializer.h"

#include <new>

#include <velquin/XML.h>

#include "physical/ApplyTo.h"
#include "physical/DChannelConfigXmlSerializer.h"
#include "physical/DigitalInterfacePhysicalConfig.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalInterfacePhysicalConfigXmlSerializer );

namespace {

using MediaType = DigitalInterfacePhysicalConfig::MediaType;

/// The first child that has one of the two names; the first name goes before the second.
xmlNode* findEither( xmlNode* in_pElement, const char* in_szName, const char* in_szOtherName ) {
    xmlNode* const pChild = XML::findFirstElement( in_pElement, in_szName );
    return pChild ? pChild : XML::findFirstElement( in_pElement, in_szOtherName );
}

bool readSpan( const ElementReader& in_reader, DigitalInterfacePhysicalConfig& out_config ) {
    auto eFraming = out_config.getFraming();
    if ( !in_reader.requireSchemaKeyword( "framing", Keywords::FRAMING, eFraming ) )
        return false;
    out_config.setFraming( eFraming );

    auto eLineEncoding = out_config.getLineEncoding();
    if ( !in_reader.requireSchemaKeyword( "lineEncoding", Keywords::LINE_ENCODING, eLineEncoding ) )
        return false;
    out_config.setLineEncoding( eLineEncoding );

    auto eClocking = out_config.getClockingMode();
    if ( !in_reader.requireSchemaKeyword( "clocking", Keywords::DIGITAL_CLOCKING, eClocking ) )
        return false;
    out_config.setClockingMode( eClocking );

    auto eLoopbackMode = out_config.getLoopbackMode();
    if ( !in_reader.requireSchemaKeyword( "loopbackMode", Keywords::LOOPBACK_MODE, eLoopbackMode ) )
        return false;
    out_config.setLoopbackMode( eLoopbackMode );

    auto eSensitivity = DigitalInterfacePhysicalConfig::RxSensitivity::RX_12dB;
    if ( in_reader.findSchemaKeyword( "receiverSensitivity", Keywords::RECEIVER_SENSITIVITY, eSensitivity ) ==
         ReadResult::WRONG )
        return false;
    out_config.setRxSensitivity( eSensitivity );

    bool bHighImpedance = false;
    if ( in_reader.findSchemaKeyword( "highImpedance", Keywords::ENABLED_DISABLED, bHighImpedance ) ==
         ReadResult::WRONG )
        return false;
    out_config.enableHighImpedance( bHighImpedance );

    if ( out_config.getMediaType() == MediaType::T1 ) {
        auto eLBOMode = out_config.getLBOMode();
        if ( !in_reader.requireSchemaKeyword( "LBO", Keywords::LINE_BUILD_OUT, eLBOMode ) )
            return false;
        out_config.setLBOMode( eLBOMode );
        return true;
    }

    auto eE1Signaling = out_config.getE1Signaling();
    if ( !in_reader.requireSchemaKeyword( "E1Signaling", Keywords::E1_SIGNALING, eE1Signaling ) )
        return false;
    out_config.setE1Signaling( eE1Signaling );

    auto eE1Termination = out_config.getE1Termination();
    if ( !in_reader.requireSchemaKeyword( "E1Termination", Keywords::E1_TERMINATION, eE1Termination ) )
        return false;
    out_config.setE1Termination( eE1Termination );
    return true;
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
    if ( !pSpan ) {
        reader.reportMissingChild( "digitalT1 or digitalE1" );
        return {};
    }
    const ElementReader spanReader( pSpan, getLogger(), PHYSICAL_SETTING_WORDING );
    const bool bT1 = std::string_view( spanReader.getName() ) == "digitalT1";
    hDigitalInterfacePhysicalConfig->setMediaType( bT1 ? MediaType::T1 : MediaType::E1 );
    if ( !readSpan( spanReader, *hDigitalInterfacePhysicalConfig ) ||
         !readDChannel( pSpan, in_xmlConfig, *hDigitalInterfacePhysicalConfig ) ||
         !applyToInterfaces<DigitalKind>( reader, in_xmlConfig, getLogger(), hDigitalInterfacePhysicalConfig,
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

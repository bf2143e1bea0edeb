#include "analog/AnalogFxsConfigXmlSerializer.h"

#include <new>
#include <utility>

#include <velquin/UniqueObjPtr.h>
#include <velquin/XML.h>

#include "analog/AnalogInterfaceRefReader.h"
#include "analog/AnalogWording.h"
#include "loading/XmlConfig.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogFxsConfigXmlSerializer );
PSTN_CONFIG_NESTED_CLASS_IMPL( AnalogFxsConfigXmlSerializer, InterfaceRefXmlSerializer );

namespace {

using InboundConfig = AnalogFxsConfig::InboundCallHandlingConfig;
using HotlineConfig = AnalogFxsConfig::HotlineDialingConfig;
using NotificationConfig = AnalogFxsConfig::DisconnectAnswerNotificationConfig;

struct FxsFamily {
    using AnalogConfig = AnalogFxsConfig;

    static constexpr const char* NAME = "FXS";
    static constexpr const char* RANGE_FAILURE = "failed to set Analog Fxs for BChannelRange";
    static constexpr const ReaderWording& WORDING = FXS_WORDING;

    static bool setConfig( BChannelRangeConfig& out_range, const AnalogFxsConfig& in_fxsConfig ) {
        const LimitedObjPtr<const AnalogFxsConfig> pFxsConfig( &in_fxsConfig );
        return out_range.setFxsConfig( pFxsConfig );
    }
};

// The log reports a wrong timeout under the name of the attribute before it.
constexpr NumberRule INTER_DIGIT_TIMEOUT{ POSITIVE_INTERGER.ePolicy, POSITIVE_INTERGER.strHint, "minExpectedDigits" };

bool readInbound( const ElementReader& in_reader, InboundConfig& out_config ) {
    if ( !in_reader.require( "minExpectedDigits", POSITIVE_INTERGER, out_config,
                             &InboundConfig::setMinExpectedDigits ) ||
         !in_reader.require( "interDigitTimeoutMs", INTER_DIGIT_TIMEOUT, out_config,
                             &InboundConfig::setInterDigitTimeoutMs ) ||
         !in_reader.require( "busyToneDurationMs", POSITIVE_INTERGER, out_config,
                             &InboundConfig::setBusyToneDurationMs ) ||
         !in_reader.require( "dialToneDurationMs", POSITIVE_INTERGER, out_config,
                             &InboundConfig::setDialToneDurationMs ) )
        return false;

    xmlNode* const pRelay = XML::findFirstElement( in_reader.getElement(), "relayEarlyMedia" );
    if ( !pRelay ) {
        // The log reports the missing element under the name of its attribute.
        in_reader.reportMissingChild( "relayEarlyMedia", "value" );
        return AttributeReader::passOver();
    }
    AttributeText relay;
    if ( !ElementReader( pRelay, in_reader.getLogger(), FXS_WORDING ).requireText( "value", relay ) )
        return AttributeReader::passOver();
    const bool* const pbRelay = Keywords::ENABLED_DISABLED.find( relay.view() );
    out_config.enableRelayEarlyMedia( !pbRelay || *pbRelay );
    return true;
}

bool readHotline( const ElementReader& in_reader, HotlineConfig& out_config ) {
    return in_reader.require( "enable", Keywords::YES_NO, out_config, &HotlineConfig::setEnabled ) &&
           ( !out_config.isEnabled() ||
             ( in_reader.require( "delayBeforeDialingMs", POSITIVE_INTEGER, out_config,
                                  &HotlineConfig::setDelayBeforeDialingMs ) &&
               in_reader.require( "dialingNumber", ANY_TEXT, out_config, &HotlineConfig::setDialingNumber ) ) );
}

bool readNotification( const ElementReader& in_reader, NotificationConfig& out_config ) {
    AttributeText mode;
    if ( !in_reader.requireText( "mode", mode ) )
        return AttributeReader::passOver();
    const NotificationConfig::Mode* const pMode = Keywords::FXS_NOTIFICATION_MODE.find( mode.view() );
    out_config.setMode( pMode ? *pMode : NotificationConfig::Mode::NONE );
    return out_config.getMode() != NotificationConfig::Mode::CURRENT_DISCONNECT ||
           in_reader.require( "currentDisconnectDurationMs", POSITIVE_INTEGER, out_config,
                              &NotificationConfig::setCurrentDisconnectDurationMs );
}

} // namespace

AnalogCallControlCommonConfig* AnalogFxsConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                                   xmlNode* const in_pElement,
                                                                   XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<AnalogCallControlCommonConfig> pCommonConfig(
        AnalogCallControlCommonConfigXmlSerializer::read( in_hCallControlConfig, in_pElement, in_xmlConfig ) );
    if ( pCommonConfig.isNull() )
        return nullptr;
    const ElementReader reader( in_pElement, getLogger(), FXS_WORDING );
    auto pFxsConfig = dynamicOwnerCast<AnalogFxsConfig>( std::move( pCommonConfig ) );
    if ( !VELQUIN_ASSERT( !pFxsConfig.isNull() ) )
        return nullptr;

    if ( !reader.require( "regretTimeMs", POSITIVE_INTERGER, *pFxsConfig, &AnalogFxsConfig::setRegretTimeMs ) ||
         !reader.require( "oosBehavior", Keywords::FXS_OUT_OF_SERVICE_BEHAVIOR, *pFxsConfig,
                          &AnalogFxsConfig::setOutOfServiceBehavior ) ||
         !readPart( reader, "inboundCallHandling", readInbound, *pFxsConfig,
                    &AnalogFxsConfig::setInboundCallHandlingConfig ) ||
         !readPart( reader, "hotlineDialing", readHotline, *pFxsConfig, &AnalogFxsConfig::setHotlineDialingConfig ) )
        return nullptr;

    // Without the element, the new object's default stays: no notification.
    UniqueObjPtr<NotificationConfig> pNotificationConfig( new NotificationConfig() );
    if ( ( XML::findFirstElement( in_pElement, "disconnectAnswerNotification" ) &&
           !reader.readChild( "disconnectAnswerNotification", readNotification, *pNotificationConfig ) &&
           !AttributeReader::passOver() ) ||
         !pFxsConfig->setDisconnectAnswerNotificationConfig( pNotificationConfig.release() ) )
        return nullptr;

    if ( !applyToAnalogInterfaces<InterfaceRefXmlSerializer>( reader, *pFxsConfig, in_hCallControlConfig,
                                                              in_xmlConfig ) )
        return nullptr;
    return pFxsConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AnalogFxsConfigXmlSerializer::write( xmlNode* const, const AnalogCallControlCommonConfig& ) {
    return assertNotImplemented( getLogger(), "AnalogFxsConfigXmlSerializer::write", __FILE__, __LINE__ );
}

AnalogCallControlCommonConfig* AnalogFxsConfigXmlSerializer::newAnalogCallControlCommonConfig() {
    return new ( std::nothrow ) AnalogFxsConfig();
}

bool AnalogFxsConfigXmlSerializer::InterfaceRefXmlSerializer::read( const LimitedObjPtr<AnalogFxsConfig>& in_pFxsConfig,
                                                                    TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                                    xmlNode* const in_pElement,
                                                                    const Config& in_config ) try {
    return VELQUIN_ASSERT( !in_pFxsConfig.isNull() ) &&
           readAnalogInterfaceRef<FxsFamily>( *in_pFxsConfig, in_hCallControlConfig, in_pElement, in_config,
                                              getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

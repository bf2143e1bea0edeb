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
PSTN_CONFIG_CLASS_IMPL( AnalogFxsConfigXmlSerializer::InterfaceRefXmlSerializer );

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

bool readInbound( xmlNode* in_pElement, const Logger& in_logger, InboundConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXS_WORDING );
    unsigned int uMinExpectedDigits = 0;
    if ( !reader.requireNumber( "minExpectedDigits", POSITIVE_INTERGER, uMinExpectedDigits ) )
        return false;
    out_config.setMinExpectedDigits( uMinExpectedDigits );

    // Those who read the log know a wrong timeout by the name of the attribute before it.
    AttributeText interDigitTimeout;
    unsigned int uInterDigitTimeoutMs = 0;
    if ( !reader.requireText( "interDigitTimeoutMs", interDigitTimeout ) ||
         !reader.takeNumber( "minExpectedDigits", interDigitTimeout, POSITIVE_INTERGER, uInterDigitTimeoutMs ) )
        return false;
    out_config.setInterDigitTimeoutMs( uInterDigitTimeoutMs );

    unsigned int uBusyToneMs = 0;
    unsigned int uDialToneMs = 0;
    if ( !reader.requireNumber( "busyToneDurationMs", POSITIVE_INTERGER, uBusyToneMs ) ||
         !reader.requireNumber( "dialToneDurationMs", POSITIVE_INTERGER, uDialToneMs ) )
        return false;
    out_config.setBusyToneDurationMs( uBusyToneMs );
    out_config.setDialToneDurationMs( uDialToneMs );

    xmlNode* const pRelay = XML::findFirstElement( in_pElement, "relayEarlyMedia" );
    if ( !pRelay ) {
        // Known in the log by the attribute that the element would have.
        reader.reportMissing( "value" );
        return false;
    }
    AttributeText relay;
    if ( !ElementReader( pRelay, in_logger, FXS_WORDING ).requireText( "value", relay ) )
        return false;
    const bool* const pbRelay = Keywords::ENABLED_DISABLED.find( relay.view() );
    out_config.enableRelayEarlyMedia( !pbRelay || *pbRelay );
    return true;
}

bool readHotline( xmlNode* in_pElement, const Logger& in_logger, HotlineConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXS_WORDING );
    bool bEnabled = false;
    if ( !reader.requireKeyword( "enable", Keywords::YES_NO, bEnabled ) )
        return false;
    unsigned int uDelayMs = HotlineConfig::NO_DELAY_MS;
    AttributeText number;
    if ( bEnabled && ( !reader.requireNumber( "delayBeforeDialingMs", POSITIVE_INTEGER, uDelayMs ) ||
                       !reader.requireText( "dialingNumber", number ) ) )
        return false;
    out_config.setEnabled( bEnabled );
    out_config.setDelayBeforeDialingMs( uDelayMs );
    return out_config.setDialingNumber( number.c_str() );
}

bool readNotification( xmlNode* in_pElement, const Logger& in_logger, NotificationConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXS_WORDING );
    AttributeText mode;
    if ( !reader.requireText( "mode", mode ) )
        return false;
    const NotificationConfig::Mode* const pMode = Keywords::FXS_NOTIFICATION_MODE.find( mode.view() );
    out_config.setMode( pMode ? *pMode : NotificationConfig::Mode::NONE );

    if ( out_config.getMode() == NotificationConfig::Mode::CURRENT_DISCONNECT ) {
        unsigned int uDurationMs = 0;
        if ( !reader.requireNumber( "currentDisconnectDurationMs", POSITIVE_INTEGER, uDurationMs ) )
            return false;
        out_config.setCurrentDisconnectDurationMs( uDurationMs );
    }
    return true;
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

    unsigned int uRegretTimeMs = 0;
    if ( !reader.requireNumber( "regretTimeMs", POSITIVE_INTERGER, uRegretTimeMs ) )
        return nullptr;
    pFxsConfig->setRegretTimeMs( uRegretTimeMs );

    auto eBehavior = pFxsConfig->getOutOfServiceBehavior();
    if ( !reader.requireKeyword( "oosBehavior", Keywords::FXS_OUT_OF_SERVICE_BEHAVIOR, eBehavior ) )
        return nullptr;
    pFxsConfig->setOutOfServiceBehavior( eBehavior );

    xmlNode* const pInbound = reader.requireChild( "inboundCallHandling" );
    UniqueObjPtr<InboundConfig> pInboundConfig( new InboundConfig() );
    if ( !pInbound || !readInbound( pInbound, getLogger(), *pInboundConfig ) ||
         !pFxsConfig->setInboundCallHandlingConfig( pInboundConfig.release() ) )
        return nullptr;

    xmlNode* const pHotline = reader.requireChild( "hotlineDialing" );
    UniqueObjPtr<HotlineConfig> pHotlineConfig( new HotlineConfig() );
    if ( !pHotline || !readHotline( pHotline, getLogger(), *pHotlineConfig ) ||
         !pFxsConfig->setHotlineDialingConfig( pHotlineConfig.release() ) )
        return nullptr;

    // A new notification is that of an absent element: none.
    xmlNode* const pNotification = XML::findFirstElement( in_pElement, "disconnectAnswerNotification" );
    UniqueObjPtr<NotificationConfig> pNotificationConfig( new NotificationConfig() );
    if ( ( pNotification && !readNotification( pNotification, getLogger(), *pNotificationConfig ) ) ||
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

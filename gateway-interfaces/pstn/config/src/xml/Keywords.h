#pragma once

#include <velquin/Media/Format.h>
#include <velquin/PSTNChannel.h>

#include "analog/AnalogFxoConfig.h"
#include "analog/AnalogFxsConfig.h"
#include "callcontrol/ChannelGroupConfig.h"
#include "callcontrol/isdn/IsdnCommonConfig.h"
#include "callcontrol/isdn/IsdnNfasGroupMemberConfig.h"
#include "hardware/AnalogInterfaceConfig.h"
#include "physical/Country.h"
#include "physical/DigitalInterfacePhysicalConfig.h"
#include "physical/TirvanaAnalogInterfacePhysicalConfig.h"
#include "physical/audio/HardwareAcousticEchoCancellationConfig.h"
#include "physical/audio/HardwareBackgroundNoiseAttenuationConfig.h"
#include "physical/audio/HardwareDtmfRemovalConfig.h"
#include "physical/audio/HardwareEchoCancellationConfig.h"
#include "physical/audio/HardwareLevelControlConfig.h"
#include "xml/KeywordTable.h"

/// All keywords of the format, one table per enumeration, in the order in which they are compared.
namespace Velquin::Pstn::Keywords {

inline constexpr auto TRUE_FALSE = keywordTable<bool>( { { "TRUE", true }, { "FALSE", false } } );
inline constexpr auto YES_NO = keywordTable<bool>( { { "YES", true }, { "NO", false } } );
inline constexpr auto ENABLED_DISABLED = keywordTable<bool>( { { "ENABLED", true }, { "DISABLED", false } } );

// Interfaces

inline constexpr auto ANALOG_MEDIA_TYPE = keywordTable<AnalogInterfaceConfig::MediaType>( {
    { "FXO", AnalogInterfaceConfig::MediaType::FXO },
    { "FXS", AnalogInterfaceConfig::MediaType::FXS },
} );

// Physical configurations

inline constexpr auto FRAMING = keywordTable<DigitalInterfacePhysicalConfig::FramingType>( {
    { "ESF", DigitalInterfacePhysicalConfig::FramingType::ESF },
    { "ESF_Japan", DigitalInterfacePhysicalConfig::FramingType::ESF_Japan },
    { "D4", DigitalInterfacePhysicalConfig::FramingType::D4 },
    { "CRC4", DigitalInterfacePhysicalConfig::FramingType::CRC4 },
    { "NonCRC4", DigitalInterfacePhysicalConfig::FramingType::NonCRC4 },
} );
inline constexpr auto LINE_ENCODING = keywordTable<DigitalInterfacePhysicalConfig::LineEncodingType>( {
    { "AMI", DigitalInterfacePhysicalConfig::LineEncodingType::AMI },
    { "B8ZS", DigitalInterfacePhysicalConfig::LineEncodingType::B8ZS },
    { "HDB3", DigitalInterfacePhysicalConfig::LineEncodingType::HDB3 },
} );
inline constexpr auto DIGITAL_CLOCKING = keywordTable<DigitalInterfacePhysicalConfig::ClockingMode>( {
    { "TERMINAL", DigitalInterfacePhysicalConfig::ClockingMode::TERMINAL },
    { "NETWORK", DigitalInterfacePhysicalConfig::ClockingMode::NETWORK },
} );
inline constexpr auto LOOPBACK_MODE = keywordTable<DigitalInterfacePhysicalConfig::LoopbackMode>( {
    { "DISABLED", DigitalInterfacePhysicalConfig::LoopbackMode::DISABLED },
} );
inline constexpr auto RECEIVER_SENSITIVITY = keywordTable<DigitalInterfacePhysicalConfig::RxSensitivity>( {
    { "12dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_12dB },
    { "18dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_18dB },
    { "30dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_30dB },
    { "36dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_36dB },
    { "43dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_43dB },
} );
inline constexpr auto E1_SIGNALING = keywordTable<DigitalInterfacePhysicalConfig::E1Signaling>( {
    { "NONE", DigitalInterfacePhysicalConfig::E1Signaling::NONE },
    { "CAS", DigitalInterfacePhysicalConfig::E1Signaling::CAS },
    { "CCS", DigitalInterfacePhysicalConfig::E1Signaling::CCS },
} );
inline constexpr auto E1_TERMINATION = keywordTable<DigitalInterfacePhysicalConfig::E1Termination>( {
    { "75ohm", DigitalInterfacePhysicalConfig::E1Termination::E1_75ohm },
    { "120ohm", DigitalInterfacePhysicalConfig::E1Termination::E1_120ohm },
} );
inline constexpr auto LINE_BUILD_OUT = keywordTable<DigitalInterfacePhysicalConfig::LBOMode>( {
    { "0dB", DigitalInterfacePhysicalConfig::LBOMode::LBO_0dB },
    { "-7.5dB", DigitalInterfacePhysicalConfig::LBOMode::LBO_minus7_5dB },
    { "-15dB", DigitalInterfacePhysicalConfig::LBOMode::LBO_minus15dB },
    { "-22.5dB", DigitalInterfacePhysicalConfig::LBOMode::LBO_minus22_5dB },
    { "0-110feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_0_110feet },
    { "110-220feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_110_220feet },
    { "220-330feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_220_330feet },
    { "330-440feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_330_440feet },
    { "440-550feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_440_550feet },
    { "550-660feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_550_660feet },
} );
inline constexpr auto ANALOG_CLOCKING = keywordTable<TirvanaAnalogInterfacePhysicalConfig::ClockingMode>( {
    { "INTERNAL", TirvanaAnalogInterfacePhysicalConfig::ClockingMode::INTERNAL },
    { "EXTERNAL", TirvanaAnalogInterfacePhysicalConfig::ClockingMode::EXTERNAL },
} );
inline constexpr auto COUNTRY = keywordTable<Country::Type>( {
#define PSTN_CONFIG_COUNTRY( name ) { #name, Country::name },
    PSTN_CONFIG_COUNTRIES( PSTN_CONFIG_COUNTRY )
#undef PSTN_CONFIG_COUNTRY
} );

// Audio

inline constexpr auto PCM_LAW = keywordTable<Media::Format::Type>( {
    { "PCMU", Media::Format::PCMU },
    { "PCMA", Media::Format::PCMA },
} );
inline constexpr auto ECHO_CANCELLATION_MODE = keywordTable<HardwareEchoCancellationConfig::Mode>( {
    { "NORMAL", HardwareEchoCancellationConfig::Mode::NORMAL },
    { "SPEECH_RECOGNIZER_FRIENDLY", HardwareEchoCancellationConfig::Mode::SPEECH_RECOGNIZER_FRIENDLY },
    { "DISABLED", HardwareEchoCancellationConfig::Mode::DISABLED },
} );
inline constexpr auto COMFORT_NOISE_MODE = keywordTable<HardwareEchoCancellationConfig::ComfortNoiseMode>( {
    { "NORMAL", HardwareEchoCancellationConfig::ComfortNoiseMode::NORMAL },
    { "DISABLED", HardwareEchoCancellationConfig::ComfortNoiseMode::DISABLED },
} );
inline constexpr auto DOUBLE_TALK_BEHAVIOR = keywordTable<HardwareEchoCancellationConfig::DoubleTalkBehavior>( {
    { "OPTIMAL", HardwareEchoCancellationConfig::DoubleTalkBehavior::OPTIMAL },
    { "MORE_RESIDUAL_ECHO", HardwareEchoCancellationConfig::DoubleTalkBehavior::MORE_RESIDUAL_ECHO },
    { "MORE_CLIPPING", HardwareEchoCancellationConfig::DoubleTalkBehavior::MORE_CLIPPING },
} );
inline constexpr auto ACOUSTIC_ECHO_CANCELLATION_MODE = keywordTable<HardwareAcousticEchoCancellationConfig::Mode>( {
    { "NORMAL", HardwareAcousticEchoCancellationConfig::Mode::NORMAL },
    { "DISABLED", HardwareAcousticEchoCancellationConfig::Mode::DISABLED },
} );
inline constexpr auto LEVEL_CONTROL_MODE = keywordTable<HardwareLevelControlConfig::Mode>( {
    { "MANUAL", HardwareLevelControlConfig::Mode::MANUAL },
    { "AUTOMATIC", HardwareLevelControlConfig::Mode::AUTOMATIC },
    { "DISABLED", HardwareLevelControlConfig::Mode::DISABLED },
} );
inline constexpr auto BACKGROUND_NOISE_ATTENUATION_MODE =
    keywordTable<HardwareBackgroundNoiseAttenuationConfig::Mode>( {
        { "ENABLED", HardwareBackgroundNoiseAttenuationConfig::Mode::ENABLED },
        { "DISABLED", HardwareBackgroundNoiseAttenuationConfig::Mode::DISABLED },
    } );
inline constexpr auto DTMF_REMOVAL_MODE = keywordTable<HardwareDtmfRemovalConfig::Mode>( {
    { "ENABLED", HardwareDtmfRemovalConfig::Mode::ENABLED },
    { "DISABLED", HardwareDtmfRemovalConfig::Mode::DISABLED },
} );
inline constexpr auto VOICE_DIRECTION = keywordTable<VoiceDirection>( {
    { "TO_PSTN", VoiceDirection::TO_PSTN },
    { "FROM_PSTN", VoiceDirection::FROM_PSTN },
    { "ALL", VoiceDirection::ALL },
} );

// Channel groups

inline constexpr auto CHANNEL_DIRECTION = keywordTable<PSTNChannel::Direction>( {
    { "IN", PSTNChannel::IN },
    { "OUT", PSTNChannel::OUT },
    { "BIDIR", PSTNChannel::BIDIR },
} );
inline constexpr auto HUNTING_SCHEME = keywordTable<ChannelGroupConfig::HuntingScheme>( {
    { "LINEAR", ChannelGroupConfig::LINEAR },
    { "REVERSE_LINEAR", ChannelGroupConfig::REVERSE_LINEAR },
} );

// ISDN

inline constexpr auto TERMINATION = keywordTable<IsdnCommonConfig::TerminationType>( {
    { "TERMINAL", IsdnCommonConfig::TerminationType::TERMINAL },
    { "NETWORK", IsdnCommonConfig::TerminationType::NETWORK },
} );
inline constexpr auto SWITCH_VARIANT = keywordTable<IsdnCommonConfig::SwitchVariantType>( {
    { "ETSI", IsdnCommonConfig::SwitchVariantType::ETSI },
    { "EuroISDN", IsdnCommonConfig::SwitchVariantType::ETSI },
    { "DMS100", IsdnCommonConfig::SwitchVariantType::DMS100 },
    { "4ESS", IsdnCommonConfig::SwitchVariantType::SWITCH_4ESS },
    { "5ESS", IsdnCommonConfig::SwitchVariantType::SWITCH_5ESS },
    { "NI2", IsdnCommonConfig::SwitchVariantType::NI2 },
} );
inline constexpr auto B_CHANNEL_NEGOTIATION = keywordTable<IsdnCommonConfig::BChannelNegociationType>( {
    { "PREFERRED", IsdnCommonConfig::BChannelNegociationType::PREFERRED },
    { "EXCLUSIVE", IsdnCommonConfig::BChannelNegociationType::EXCLUSIVE },
} );
inline constexpr auto TONES_GENERATION = keywordTable<IsdnCommonConfig::InbandProgressTonesGenerationType>( {
    { "NEVER", IsdnCommonConfig::InbandProgressTonesGenerationType::NEVER },
    { "ALWAYS", IsdnCommonConfig::InbandProgressTonesGenerationType::ALWAYS },
    { "AS-NEEDED", IsdnCommonConfig::InbandProgressTonesGenerationType::AS_NEEDED },
} );
inline constexpr auto TONES_INDICATOR = keywordTable<IsdnCommonConfig::InbandProgressTonesIndicatorType>( {
    { "PROGRESS", IsdnCommonConfig::InbandProgressTonesIndicatorType::PROGRESS },
    { "ALERTING", IsdnCommonConfig::InbandProgressTonesIndicatorType::ALERTING },
    { "BOTH", IsdnCommonConfig::InbandProgressTonesIndicatorType::BOTH },
} );
inline constexpr auto CALLER_NAME_LOCATION = keywordTable<IsdnCommonConfig::CallerNameLocationType>( {
    { "DISABLED", IsdnCommonConfig::CallerNameLocationType::DISABLED },
    { "IN-SETUP-MSG", IsdnCommonConfig::CallerNameLocationType::IN_SETUP_MSG },
    { "IN-FACILITY-MSG", IsdnCommonConfig::CallerNameLocationType::IN_FACILITY_MSG },
} );
inline constexpr auto NFAS_D_CHANNEL_MODE = keywordTable<IsdnNfasGroupMemberConfig::DChannelMode>( {
    { "DISABLED", IsdnNfasGroupMemberConfig::DChannelMode::DISABLED },
    { "PRIMARY", IsdnNfasGroupMemberConfig::DChannelMode::PRIMARY },
    { "BACKUP", IsdnNfasGroupMemberConfig::DChannelMode::BACKUP },
} );

// Analog call control

inline constexpr auto FXO_NOTIFY_CONDITION =
    keywordTable<AnalogFxoConfig::InboundCallHandlingConfig::NotifyCondition>( {
        { "ON-FIRST-RING", AnalogFxoConfig::InboundCallHandlingConfig::NotifyCondition::ON_FIRST_RING },
        { "ON-CALLER-ID", AnalogFxoConfig::InboundCallHandlingConfig::NotifyCondition::ON_CALLER_ID },
        { "AFTER-N-RING", AnalogFxoConfig::InboundCallHandlingConfig::NotifyCondition::AFTER_N_RING },
    } );
inline constexpr auto FXO_INBOUND_CONNECT_CONDITION =
    keywordTable<AnalogFxoConfig::InboundCallHandlingConfig::ConnectCondition>( {
        { "ON-OUTBOUNDSIDE-NOTIFIED",
          AnalogFxoConfig::InboundCallHandlingConfig::ConnectCondition::ON_OUTBOUNDSIDE_NOTIFIED },
        { "ON-OUTBOUNDSIDE-CONNECTED",
          AnalogFxoConfig::InboundCallHandlingConfig::ConnectCondition::ON_OUTBOUNDSIDE_CONNECTED },
        { "ON-OUTBOUNDSIDE-MEDIA-AVAILABLE",
          AnalogFxoConfig::InboundCallHandlingConfig::ConnectCondition::ON_OUTBOUNDSIDE_MEDIA_AVAILABLE },
    } );
inline constexpr auto FXO_CALLER_ID_TYPE = keywordTable<AnalogFxoConfig::InboundCallHandlingConfig::CallerIdType>( {
    { "BT-Bellcore-FSK-SDMF-MDMF",
      AnalogFxoConfig::InboundCallHandlingConfig::CallerIdType::BT_BELLCORE_FSK_SDMF_MDMF },
} );
inline constexpr auto FXO_CONNECT_SUPERVISION =
    keywordTable<AnalogFxoConfig::OutboundCallHandlingConfig::ConnectSupervision>( {
        { "AFTER-DIALING-DESTINATION-NUMBER",
          AnalogFxoConfig::OutboundCallHandlingConfig::ConnectSupervision::AFTER_DIALING_DESTINATION_NUMBER },
        { "ON-VOICE", AnalogFxoConfig::OutboundCallHandlingConfig::ConnectSupervision::ON_VOICE },
        { "ON-BATTERY-POLARITY-INVERSION",
          AnalogFxoConfig::OutboundCallHandlingConfig::ConnectSupervision::ON_BATTERY_POLARITY_INVERSION },
        { "ON-REMOTE-RING-STOPPED",
          AnalogFxoConfig::OutboundCallHandlingConfig::ConnectSupervision::ON_REMOTE_RING_STOPPED },
    } );
inline constexpr auto FXO_OUTBOUND_CONNECT_CONDITION =
    keywordTable<AnalogFxoConfig::OutboundCallHandlingConfig::ConnectCondition>( {
        { "ON-OUTBOUNDSIDE-CONNECTED",
          AnalogFxoConfig::OutboundCallHandlingConfig::ConnectCondition::ON_OUTBOUNDSIDE_CONNECTED },
        { "ON-OUTBOUNDSIDE-NOTIFIED",
          AnalogFxoConfig::OutboundCallHandlingConfig::ConnectCondition::ON_OUTBOUNDSIDE_NOTIFIED },
        { "ON-INBOUNDSIDE-NOTIFICATION",
          AnalogFxoConfig::OutboundCallHandlingConfig::ConnectCondition::ON_INBOUNDSIDE_NOTIFICATION },
    } );
inline constexpr auto FXS_OUT_OF_SERVICE_BEHAVIOR = keywordTable<AnalogFxsConfig::OutOfServiceBehavior>( {
    { "REORDER", AnalogFxsConfig::OutOfServiceBehavior::REORDER },
    { "NONE", AnalogFxsConfig::OutOfServiceBehavior::NONE },
} );
inline constexpr auto FXS_NOTIFICATION_MODE = keywordTable<AnalogFxsConfig::DisconnectAnswerNotificationConfig::Mode>( {
    { "NONE", AnalogFxsConfig::DisconnectAnswerNotificationConfig::Mode::NONE },
    { "POLARITY-REVERSAL", AnalogFxsConfig::DisconnectAnswerNotificationConfig::Mode::POLARITY_REVERSAL },
    { "CURRENT-DISCONNECT", AnalogFxsConfig::DisconnectAnswerNotificationConfig::Mode::CURRENT_DISCONNECT },
} );

} // namespace Velquin::Pstn::Keywords

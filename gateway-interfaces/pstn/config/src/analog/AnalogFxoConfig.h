#pragma once

#include <string>

#include "../reading/KeywordTable.h"
#include "AnalogDisconnectSupervisionConfig.h"
#include "AppliedAnalogCallControlConfig.h"

namespace Velquin::Pstn {

/// How calls run on lines where the gateway plays the telephone: a central office or PBX feeds the line. A copy shares
/// the parts of the configuration. The setters of parts take ownership; null leaves the part out.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogFxoConfig : public AppliedAnalogCallControlConfig {
    PSTN_CONFIG_CLASS( AnalogFxoConfig );

public:
    /// Calls that arrive on the line. The outbound side is where the call goes.
    class VELQUIN_PSTN_CONFIG_EXPORT InboundCallHandlingConfig : public virtual Object {
        PSTN_CONFIG_CLASS( InboundCallHandlingConfig );

    public:
        /// When the gateway notifies the outbound side of the call.
        enum class NotifyCondition {
            ON_FIRST_RING = 0,
            ON_CALLER_ID = 1,
            AFTER_N_RING = 2, ///< after getNumberOfRings()
        };
        /// When the gateway answers the line. The numbers differ from those of the outbound enumeration.
        enum class ConnectCondition {
            ON_OUTBOUNDSIDE_NOTIFIED = 0,
            ON_OUTBOUNDSIDE_CONNECTED = 1,
            ON_OUTBOUNDSIDE_MEDIA_AVAILABLE = 2,
        };
        /// How the line names the caller.
        enum class CallerIdType { BT_BELLCORE_FSK_SDMF_MDMF = 0 };

        /// ON_FIRST_RING until set.
        NotifyCondition getNotifyCondition() const noexcept { return m_eNotifyCondition; }
        void setNotifyCondition( NotifyCondition in_eCondition ) noexcept { m_eNotifyCondition = in_eCondition; }

        /// Delay between the condition and the notification, in milliseconds; 0 until set.
        unsigned int getNotifyDelayMs() const noexcept { return m_uNotifyDelayMs; }
        void setNotifyDelayMs( unsigned int in_uDelayMs ) noexcept { m_uNotifyDelayMs = in_uDelayMs; }

        /// ON_OUTBOUNDSIDE_NOTIFIED until set.
        ConnectCondition getConnectCondition() const noexcept { return m_eConnectCondition; }
        void setConnectCondition( ConnectCondition in_eCondition ) noexcept { m_eConnectCondition = in_eCondition; }

        CallerIdType getCallerIdType() const noexcept { return m_eCallerIdType; }
        void setCallerIdType( CallerIdType in_eCallerIdType ) noexcept { m_eCallerIdType = in_eCallerIdType; }

        /// Has a meaning only if the notify condition is AFTER_N_RING; 0 until set.
        unsigned int getNumberOfRings() const noexcept { return m_uNumberOfRings; }
        void setNumberOfRings( unsigned int in_uNumberOfRings ) noexcept { m_uNumberOfRings = in_uNumberOfRings; }

    private:
        NotifyCondition m_eNotifyCondition = NotifyCondition::ON_FIRST_RING;
        unsigned int m_uNotifyDelayMs = 0;
        ConnectCondition m_eConnectCondition = ConnectCondition::ON_OUTBOUNDSIDE_NOTIFIED;
        CallerIdType m_eCallerIdType = CallerIdType::BT_BELLCORE_FSK_SDMF_MDMF;
        unsigned int m_uNumberOfRings = 0;
    };

    /// Calls that the gateway places on the line. The outbound side is the line; the inbound side is where the call
    /// came from.
    class VELQUIN_PSTN_CONFIG_EXPORT OutboundCallHandlingConfig : public virtual Object {
        PSTN_CONFIG_CLASS( OutboundCallHandlingConfig );

    public:
        /// When the gateway connects the inbound side. The numbers differ from those of the inbound enumeration.
        enum class ConnectCondition {
            ON_OUTBOUNDSIDE_CONNECTED = 0,
            ON_OUTBOUNDSIDE_NOTIFIED = 1,
            ON_INBOUNDSIDE_NOTIFICATION = 2,
        };
        /// What on the line says that the call is answered.
        enum class ConnectSupervision {
            AFTER_DIALING_DESTINATION_NUMBER = 0,
            ON_VOICE = 1,
            ON_BATTERY_POLARITY_INVERSION = 2,
            ON_REMOTE_RING_STOPPED = 3,
        };

        /// Whether the gateway waits for the dial tone before it dials; off until set.
        bool isWaitForDialToneEnabled() const noexcept { return m_bWaitForDialTone; }
        void enableWaitForDialTone( bool in_bEnable ) noexcept { m_bWaitForDialTone = in_bEnable; }

        /// Whether the gateway dials at all; off until set.
        bool isDialingActive() const noexcept { return m_bDialingActive; }
        void setDialingActive( bool in_bActive ) noexcept { m_bDialingActive = in_bActive; }

        // Delay before the first digit, pause between two digits, length of a digit, in milliseconds; 0 until set.
        unsigned int getPreDialDelayMs() const noexcept { return m_uPreDialDelayMs; }
        void setPreDialDelayMs( unsigned int in_uDelayMs ) noexcept { m_uPreDialDelayMs = in_uDelayMs; }
        unsigned int getInterDigitDelayMs() const noexcept { return m_uInterDigitDelayMs; }
        void setInterDigitDelayMs( unsigned int in_uDelayMs ) noexcept { m_uInterDigitDelayMs = in_uDelayMs; }
        unsigned int getDTMFDigitDurationMs() const noexcept { return m_uDTMFDigitDurationMs; }
        void setDTMFDigitDurationMs( unsigned int in_uDurationMs ) noexcept { m_uDTMFDigitDurationMs = in_uDurationMs; }

        /// ON_OUTBOUNDSIDE_CONNECTED until set.
        ConnectCondition getInboundSideConnectCondition() const noexcept { return m_eConnectCondition; }
        void setInboundSideConnectCondition( ConnectCondition in_eCondition ) noexcept {
            m_eConnectCondition = in_eCondition;
        }

        /// AFTER_DIALING_DESTINATION_NUMBER until set.
        ConnectSupervision getOutboundSideConnectSupervision() const noexcept { return m_eConnectSupervision; }
        void setOutboundSideConnectSupervision( ConnectSupervision in_eSupervision ) noexcept {
            m_eConnectSupervision = in_eSupervision;
        }

        /// Delay between the condition and the connection of the inbound side, in milliseconds; 0 until set.
        unsigned int getConnectDelayMs() const noexcept { return m_uConnectDelayMs; }
        void setConnectDelayMs( unsigned int in_uDelayMs ) noexcept { m_uConnectDelayMs = in_uDelayMs; }

        /// In milliseconds; 0 until set. Has no meaning if the supervision is AFTER_DIALING_DESTINATION_NUMBER.
        unsigned int getDisconnectTimeoutMs() const noexcept { return m_uDisconnectTimeoutMs; }
        void setDisconnectTimeoutMs( unsigned int in_uTimeoutMs ) noexcept { m_uDisconnectTimeoutMs = in_uTimeoutMs; }

        /// In milliseconds; 0 until set. Has a meaning only if the supervision is ON_REMOTE_RING_STOPPED.
        unsigned int getConnectOnNoRemoteRingTimeoutMs() const noexcept { return m_uConnectOnNoRemoteRingTimeoutMs; }
        void setConnectOnNoRemoteRingTimeoutMs( unsigned int in_uTimeoutMs ) noexcept {
            m_uConnectOnNoRemoteRingTimeoutMs = in_uTimeoutMs;
        }

        /// The character that marks an international number; '+' until set.
        char getInternationalDialingSpecialCharacter() const noexcept { return m_cSpecialCharacter; }
        void setInternationalDialingSpecialCharacter( char in_cCharacter ) noexcept {
            m_cSpecialCharacter = in_cCharacter;
        }

        /// The digits that the gateway dials in its place; empty until set. The reader makes sure that there are only
        /// digits; the setter doesn't check.
        const char* getInternationalDialingSpecialCharacterSubstitute() const noexcept {
            return m_strSpecialCharacterSubstitute.c_str();
        }
        /// Refuses null, with an assertion.
        bool setInternationalDialingSpecialCharacterSubstitute( const char* in_szSubstitute );

    private:
        bool m_bWaitForDialTone = false;
        bool m_bDialingActive = false;
        unsigned int m_uPreDialDelayMs = 0;
        unsigned int m_uInterDigitDelayMs = 0;
        unsigned int m_uDTMFDigitDurationMs = 0;
        ConnectCondition m_eConnectCondition = ConnectCondition::ON_OUTBOUNDSIDE_CONNECTED;
        ConnectSupervision m_eConnectSupervision = ConnectSupervision::AFTER_DIALING_DESTINATION_NUMBER;
        unsigned int m_uConnectDelayMs = 0;
        unsigned int m_uDisconnectTimeoutMs = 0;
        unsigned int m_uConnectOnNoRemoteRingTimeoutMs = 0;
        char m_cSpecialCharacter = '+';
        std::string m_strSpecialCharacterSubstitute;
    };

    AnalogFxoConfig() noexcept : AppliedAnalogCallControlConfig( "Fxo", &AnalogFxoConfig::getLogger ) {}

    /// Null until set.
    const TSHandle<InboundCallHandlingConfig>& getInboundCallHandlingConfigHandle() const noexcept {
        return m_hInboundCallHandlingConfig;
    }
    bool setInboundCallHandlingConfig( InboundCallHandlingConfig* in_pInboundCallHandlingConfig );

    /// Null until set.
    const TSHandle<OutboundCallHandlingConfig>& getOutboundCallHandlingConfigHandle() const noexcept {
        return m_hOutboundCallHandlingConfig;
    }
    bool setOutboundCallHandlingConfig( OutboundCallHandlingConfig* in_pOutboundCallHandlingConfig );

    /// Null when the gateway doesn't detect that the far end hung up.
    const TSHandle<AnalogDisconnectSupervisionConfig>& getDisconnectSupervisonConfigHandle() const noexcept {
        return m_hDisconnectSupervisionConfig;
    }
    bool setDisconnectSupervisionConfig( AnalogDisconnectSupervisionConfig* in_pDisconnectSupervisionConfig );

    /// Shortest time, in milliseconds, that the gateway stays on-hook after it releases the line; 0 until set.
    unsigned int getOnHookMinimumDurationMs() const noexcept { return m_uOnHookMinimumDurationMs; }
    void setOnHookMinimumDurationMs( unsigned int in_uDurationMs ) noexcept {
        m_uOnHookMinimumDurationMs = in_uDurationMs;
    }

private:
    TSHandle<InboundCallHandlingConfig> m_hInboundCallHandlingConfig;
    TSHandle<OutboundCallHandlingConfig> m_hOutboundCallHandlingConfig;
    TSHandle<AnalogDisconnectSupervisionConfig> m_hDisconnectSupervisionConfig;
    unsigned int m_uOnHookMinimumDurationMs = 0;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

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

} // namespace Keywords

} // namespace Velquin::Pstn

#pragma once

#include <string>

#include "../reading/KeywordTable.h"
#include "AppliedAnalogCallControlConfig.h"

namespace Velquin::Pstn {

/// How calls run on lines where the gateway plays the exchange: a telephone is plugged into the gateway. A copy shares
/// the parts of the configuration. The setters of parts take ownership; null leaves the part out.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogFxsConfig : public AppliedAnalogCallControlConfig {
    PSTN_CONFIG_CLASS( AnalogFxsConfig );

public:
    /// What a telephone out of service hears.
    enum class OutOfServiceBehavior {
        NONE = 0,
        REORDER = 1, ///< the reorder tone
    };

    /// Calls from the telephone: digits and tones.
    class VELQUIN_PSTN_CONFIG_EXPORT InboundCallHandlingConfig : public virtual Object {
        PSTN_CONFIG_CLASS( InboundCallHandlingConfig );

    public:
        /// Whether the telephone hears what the far end sends before it answers; off until set.
        bool isRelayEarlyMediaEnabled() const noexcept { return m_bRelayEarlyMedia; }
        void enableRelayEarlyMedia( bool in_bEnable ) noexcept { m_bRelayEarlyMedia = in_bEnable; }

        /// Least number of digits of a complete number; 0 until set.
        unsigned int getMinExpectedDigits() const noexcept { return m_uMinExpectedDigits; }
        void setMinExpectedDigits( unsigned int in_uDigits ) noexcept { m_uMinExpectedDigits = in_uDigits; }

        /// Time, in milliseconds, after which dialling is over if no further digit comes; 0 until set.
        unsigned int getInterDigitTimeoutMs() const noexcept { return m_uInterDigitTimeoutMs; }
        void setInterDigitTimeoutMs( unsigned int in_uTimeoutMs ) noexcept { m_uInterDigitTimeoutMs = in_uTimeoutMs; }

        // Lengths of tones, in milliseconds; 0 until set.
        unsigned int getBusyToneDurationMs() const noexcept { return m_uBusyToneDurationMs; }
        void setBusyToneDurationMs( unsigned int in_uDurationMs ) noexcept { m_uBusyToneDurationMs = in_uDurationMs; }
        unsigned int getDialToneDurationMs() const noexcept { return m_uDialToneDurationMs; }
        void setDialToneDurationMs( unsigned int in_uDurationMs ) noexcept { m_uDialToneDurationMs = in_uDurationMs; }

    private:
        bool m_bRelayEarlyMedia = false;
        unsigned int m_uMinExpectedDigits = 0;
        unsigned int m_uInterDigitTimeoutMs = 0;
        unsigned int m_uBusyToneDurationMs = 0;
        unsigned int m_uDialToneDurationMs = 0;
    };

    /// Dialling of a fixed number as soon as the handset goes off-hook.
    class VELQUIN_PSTN_CONFIG_EXPORT HotlineDialingConfig : public virtual Object {
        PSTN_CONFIG_CLASS( HotlineDialingConfig );

    public:
        /// The delay when dialling is off.
        static constexpr unsigned int NO_DELAY_MS = 0xFFFFFFFF;

        /// Off until set.
        bool isEnabled() const noexcept { return m_bEnabled; }
        void setEnabled( bool in_bEnabled ) noexcept { m_bEnabled = in_bEnabled; }

        /// In milliseconds; NO_DELAY_MS until set.
        unsigned int getDelayBeforeDialingMs() const noexcept { return m_uDelayBeforeDialingMs; }
        void setDelayBeforeDialingMs( unsigned int in_uDelayMs ) noexcept { m_uDelayBeforeDialingMs = in_uDelayMs; }

        /// Any text; empty until set.
        const char* getDialingNumber() const noexcept { return m_strDialingNumber.c_str(); }
        /// Refuses null, with an assertion.
        bool setDialingNumber( const char* in_szDialingNumber );

    private:
        bool m_bEnabled = false;
        unsigned int m_uDelayBeforeDialingMs = NO_DELAY_MS;
        std::string m_strDialingNumber;
    };

    /// How the telephone learns that the far end answered or hung up.
    class VELQUIN_PSTN_CONFIG_EXPORT DisconnectAnswerNotificationConfig : public virtual Object {
        PSTN_CONFIG_CLASS( DisconnectAnswerNotificationConfig );

    public:
        enum class Mode {
            NONE = 0,
            POLARITY_REVERSAL = 1,
            CURRENT_DISCONNECT = 2,
        };

        /// NONE until set.
        Mode getMode() const noexcept { return m_eMode; }
        void setMode( Mode in_eMode ) noexcept { m_eMode = in_eMode; }

        /// Length of the interruption of the current, in milliseconds; 0 unless the mode is CURRENT_DISCONNECT.
        unsigned int getCurrentDisconnectDurationMs() const noexcept { return m_uCurrentDisconnectDurationMs; }
        void setCurrentDisconnectDurationMs( unsigned int in_uDurationMs ) noexcept {
            m_uCurrentDisconnectDurationMs = in_uDurationMs;
        }

    private:
        Mode m_eMode = Mode::NONE;
        unsigned int m_uCurrentDisconnectDurationMs = 0;
    };

    AnalogFxsConfig() noexcept : AppliedAnalogCallControlConfig( "Fxs", &AnalogFxsConfig::getLogger ) {}

    /// Null until set.
    const TSHandle<InboundCallHandlingConfig>& getInboundCallHandlingConfigHandle() const noexcept {
        return m_hInboundCallHandlingConfig;
    }
    bool setInboundCallHandlingConfig( InboundCallHandlingConfig* in_pInboundCallHandlingConfig );

    /// Null until set.
    const TSHandle<HotlineDialingConfig>& getHotlineDialingConfigHandle() const noexcept {
        return m_hHotlineDialingConfig;
    }
    bool setHotlineDialingConfig( HotlineDialingConfig* in_pHotlineDialingConfig );

    /// Null until set.
    const TSHandle<DisconnectAnswerNotificationConfig>& getDisconnectAnswerNotificationConfig() const noexcept {
        return m_hDisconnectAnswerNotificationConfig;
    }
    bool
    setDisconnectAnswerNotificationConfig( DisconnectAnswerNotificationConfig* in_pDisconnectAnswerNotificationConfig );

    /// How long, in milliseconds, the telephone may be on-hook before the gateway releases the call; 0 until set.
    unsigned int getRegretTimeMs() const noexcept { return m_uRegretTimeMs; }
    void setRegretTimeMs( unsigned int in_uRegretTimeMs ) noexcept { m_uRegretTimeMs = in_uRegretTimeMs; }

    /// NONE until set.
    OutOfServiceBehavior getOutOfServiceBehavior() const noexcept { return m_eOutOfServiceBehavior; }
    void setOutOfServiceBehavior( OutOfServiceBehavior in_eBehavior ) noexcept {
        m_eOutOfServiceBehavior = in_eBehavior;
    }

private:
    TSHandle<InboundCallHandlingConfig> m_hInboundCallHandlingConfig;
    TSHandle<HotlineDialingConfig> m_hHotlineDialingConfig;
    TSHandle<DisconnectAnswerNotificationConfig> m_hDisconnectAnswerNotificationConfig;
    unsigned int m_uRegretTimeMs = 0;
    OutOfServiceBehavior m_eOutOfServiceBehavior = OutOfServiceBehavior::NONE;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto FXS_OUT_OF_SERVICE_BEHAVIOR = keywordTable<AnalogFxsConfig::OutOfServiceBehavior>( {
    { "REORDER", AnalogFxsConfig::OutOfServiceBehavior::REORDER },
    { "NONE", AnalogFxsConfig::OutOfServiceBehavior::NONE },
} );
inline constexpr auto FXS_NOTIFICATION_MODE = keywordTable<AnalogFxsConfig::DisconnectAnswerNotificationConfig::Mode>( {
    { "NONE", AnalogFxsConfig::DisconnectAnswerNotificationConfig::Mode::NONE },
    { "POLARITY-REVERSAL", AnalogFxsConfig::DisconnectAnswerNotificationConfig::Mode::POLARITY_REVERSAL },
    { "CURRENT-DISCONNECT", AnalogFxsConfig::DisconnectAnswerNotificationConfig::Mode::CURRENT_DISCONNECT },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

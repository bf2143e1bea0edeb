#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"
#include "../../reading/KeywordTable.h"

namespace Velquin::Pstn {

/// ISDN signalling settings (ITU-T Q.931) that FAS and NFAS groups have in common.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnCommonConfig : public virtual Object {
    PSTN_CONFIG_CLASS( IsdnCommonConfig );

public:
    /// The side that the gateway plays.
    enum class TerminationType { TERMINAL = 1, NETWORK = 2 };
    /// The protocol of the switch at the other end.
    enum class SwitchVariantType { SWITCH_4ESS = 1, SWITCH_5ESS = 2, DMS100 = 3, ETSI = 4, NI2 = 5 };
    enum class BChannelNegociationType { PREFERRED = 1, EXCLUSIVE = 2 };
    enum class InbandProgressTonesGenerationType { NEVER = 1, ALWAYS = 2, AS_NEEDED = 3 };
    /// The message that announces in-band tones.
    enum class InbandProgressTonesIndicatorType { ALERTING = 1, PROGRESS = 2, BOTH = 3 };
    /// The message that carries the calling party's name.
    enum class CallerNameLocationType { DISABLED = 1, IN_SETUP_MSG = 2, IN_FACILITY_MSG = 3 };

    /// The group's number, unique among the groups of its kind (FAS, NFAS).
    unsigned int getId() const noexcept { return m_uId; }
    void setId( unsigned int in_uId ) noexcept { m_uId = in_uId; }

    /// TERMINAL until set.
    TerminationType getTermination() const noexcept { return m_eTermination; }
    void setTermination( TerminationType in_eTermination ) noexcept { m_eTermination = in_eTermination; }

    /// ETSI until set.
    SwitchVariantType getSwitchVariant() const noexcept { return m_eSwitchVariant; }
    void setSwitchVariant( SwitchVariantType in_eSwitchVariant ) noexcept { m_eSwitchVariant = in_eSwitchVariant; }

    /// PREFERRED until set.
    BChannelNegociationType getBChannelNegociation() const noexcept { return m_eBChannelNegociation; }
    void setBChannelNegociation( BChannelNegociationType in_eNegociation ) noexcept {
        m_eBChannelNegociation = in_eNegociation;
    }

    /// Whether the gateway sends RESTART for its channels when the D-channel comes up; on until set.
    bool getInitiateRestartProcedure() const noexcept { return m_bInitiateRestartProcedure; }
    void setInitiateRestartProcedure( bool in_bInitiate ) noexcept { m_bInitiateRestartProcedure = in_bInitiate; }

    /// AS_NEEDED until set.
    InbandProgressTonesGenerationType getInbandProgressTonesGeneration() const noexcept {
        return m_eInbandProgressTonesGeneration;
    }
    void setInbandProgressTonesGeneration( InbandProgressTonesGenerationType in_eGeneration ) noexcept {
        m_eInbandProgressTonesGeneration = in_eGeneration;
    }

    /// PROGRESS until set.
    InbandProgressTonesIndicatorType getInbandProgressTonesIndicator() const noexcept {
        return m_eInbandProgressTonesIndicator;
    }
    void setInbandProgressTonesIndicator( InbandProgressTonesIndicatorType in_eIndicator ) noexcept {
        m_eInbandProgressTonesIndicator = in_eIndicator;
    }

    /// DISABLED until set.
    CallerNameLocationType getCallerNameLocation() const noexcept { return m_eCallerNameLocation; }
    void setCallerNameLocation( CallerNameLocationType in_eLocation ) noexcept { m_eCallerNameLocation = in_eLocation; }

    /// How long, in milliseconds, to wait for a FACILITY message with the caller's name.
    unsigned int getFacilityDelayMs() const noexcept { return m_uFacilityDelayMs; }
    void setFacilityDelayMs( unsigned int in_uDelayMs ) noexcept { m_uFacilityDelayMs = in_uDelayMs; }

private:
    // Until the reader sets them
    unsigned int m_uId = 0;
    TerminationType m_eTermination = TerminationType::TERMINAL;
    SwitchVariantType m_eSwitchVariant = SwitchVariantType::ETSI;
    BChannelNegociationType m_eBChannelNegociation = BChannelNegociationType::PREFERRED;
    bool m_bInitiateRestartProcedure = true;
    InbandProgressTonesGenerationType m_eInbandProgressTonesGeneration = InbandProgressTonesGenerationType::AS_NEEDED;
    InbandProgressTonesIndicatorType m_eInbandProgressTonesIndicator = InbandProgressTonesIndicatorType::PROGRESS;
    CallerNameLocationType m_eCallerNameLocation = CallerNameLocationType::DISABLED;
    unsigned int m_uFacilityDelayMs = 0;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

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

} // namespace Keywords

} // namespace Velquin::Pstn

#pragma once

#include "../reading/KeywordTable.h"
#include "AnalogInterfacePhysicalConfig.h"

namespace Velquin::Pstn {

/// How ports of Tirvana analog cards are driven.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaAnalogInterfacePhysicalConfig : public AnalogInterfacePhysicalConfig {
    PSTN_CONFIG_CLASS( TirvanaAnalogInterfacePhysicalConfig );

public:
    /// INTERNAL: the card makes its own clock, as a single card must. EXTERNAL: it takes the clock of another card.
    enum class ClockingMode { INTERNAL = 1, EXTERNAL = 2 };

    /// INTERNAL by default.
    ClockingMode getClocking() const noexcept { return m_eClocking; }
    void setClocking( ClockingMode in_eClocking ) noexcept { m_eClocking = in_eClocking; }

    // Gains in dB, towards the gateway (Rx) and towards the line (Tx); negative ones attenuate. 0 by default.
    double getFxoRxGain() const noexcept { return m_dFxoRxGain; }
    void setFxoRxGain( double in_dGainIndB ) noexcept { m_dFxoRxGain = in_dGainIndB; }
    double getFxoTxGain() const noexcept { return m_dFxoTxGain; }
    void setFxoTxGain( double in_dGainIndB ) noexcept { m_dFxoTxGain = in_dGainIndB; }
    double getFxsRxGain() const noexcept { return m_dFxsRxGain; }
    void setFxsRxGain( double in_dGainIndB ) noexcept { m_dFxsRxGain = in_dGainIndB; }
    double getFxsTxGain() const noexcept { return m_dFxsTxGain; }
    void setFxsTxGain( double in_dGainIndB ) noexcept { m_dFxsTxGain = in_dGainIndB; }

    /// How long, in milliseconds, the battery must stay on or off before the port notices the change; 64 by default.
    unsigned int getFxoBatteryDebounce() const noexcept { return m_uFxoBatteryDebounce; }
    void setFxoBatteryDebounce( unsigned int in_uDebounceInMs ) noexcept { m_uFxoBatteryDebounce = in_uDebounceInMs; }

    /// The line voltage, in volts, below which the battery counts as off; 3 by default.
    unsigned int getFxoBatteryThreshold() const noexcept { return m_uFxoBatteryThreshold; }
    void setFxoBatteryThreshold( unsigned int in_uThresholdInVolts ) noexcept {
        m_uFxoBatteryThreshold = in_uThresholdInVolts;
    }

private:
    ClockingMode m_eClocking = ClockingMode::INTERNAL;
    double m_dFxoRxGain = 0;
    double m_dFxoTxGain = 0;
    double m_dFxsRxGain = 0;
    double m_dFxsTxGain = 0;
    unsigned int m_uFxoBatteryDebounce = 64;
    unsigned int m_uFxoBatteryThreshold = 3;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto ANALOG_CLOCKING = keywordTable<TirvanaAnalogInterfacePhysicalConfig::ClockingMode>( {
    { "INTERNAL", TirvanaAnalogInterfacePhysicalConfig::ClockingMode::INTERNAL },
    { "EXTERNAL", TirvanaAnalogInterfacePhysicalConfig::ClockingMode::EXTERNAL },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

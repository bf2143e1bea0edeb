#pragma once

#include "DigitalInterfaceConfig.h"

namespace Velquin::Pstn {

/// A span of a Tirvana digital card.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalInterfaceConfig : public DigitalInterfaceConfig {
    PSTN_CONFIG_CLASS( TirvanaDigitalInterfaceConfig );

public:
    /// The driver's device number of the span, unique over all analog boards and digital interfaces; 0 until set.
    unsigned int getTirpipe() const noexcept { return m_uTirpipe; }
    void setTirpipe( unsigned int in_uTirpipe ) noexcept { m_uTirpipe = in_uTirpipe; }

    /// Whether the board takes its clock from this span; the board's configuration says so, not the interface's.
    bool isPrimaryClockReference() const noexcept { return m_bPrimaryClockReference; }
    void setPrimaryClockReference( bool in_bReference ) noexcept { m_bPrimaryClockReference = in_bReference; }

private:
    unsigned int m_uTirpipe = 0;
    bool m_bPrimaryClockReference = false;
};

} // namespace Velquin::Pstn

#pragma once

#include "AnalogBoardConfig.h"

namespace Velquin::Pstn {

/// An analog card of the Tirvana provider.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaAnalogBoardConfig : public AnalogBoardConfig {
    PSTN_CONFIG_CLASS( TirvanaAnalogBoardConfig );

public:
    /// The driver's device number of the card, unique over all analog boards and digital interfaces; 0 until set.
    unsigned int getTirpipe() const noexcept { return m_uTirpipe; }
    void setTirpipe( unsigned int in_uTirpipe ) noexcept { m_uTirpipe = in_uTirpipe; }

private:
    unsigned int m_uTirpipe = 0;
};

} // namespace Velquin::Pstn

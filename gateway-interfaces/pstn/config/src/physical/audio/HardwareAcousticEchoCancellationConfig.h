#pragma once

#include "physical/audio/AcousticEchoCancellationConfig.h"

namespace Velquin::Pstn {

/// Acoustic echo cancellation by the board's hardware.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareAcousticEchoCancellationConfig : public AcousticEchoCancellationConfig {
    PSTN_CONFIG_CLASS( HardwareAcousticEchoCancellationConfig );

public:
    enum class Mode { NORMAL = 1, DISABLED = 2 };

    /// NORMAL until set.
    Mode getMode() const noexcept { return m_eMode; }
    void setMode( Mode in_eMode ) noexcept { m_eMode = in_eMode; }

private:
    Mode m_eMode = Mode::NORMAL;
};

} // namespace Velquin::Pstn

#pragma once

#include "../../reading/KeywordTable.h"
#include "AcousticEchoCancellationConfig.h"

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

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto ACOUSTIC_ECHO_CANCELLATION_MODE = keywordTable<HardwareAcousticEchoCancellationConfig::Mode>( {
    { "NORMAL", HardwareAcousticEchoCancellationConfig::Mode::NORMAL },
    { "DISABLED", HardwareAcousticEchoCancellationConfig::Mode::DISABLED },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

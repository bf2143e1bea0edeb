#pragma once

#include "../../reading/KeywordTable.h"
#include "EchoCancellationConfig.h"

namespace Velquin::Pstn {

/// Echo cancellation by the board's hardware.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareEchoCancellationConfig : public EchoCancellationConfig {
    PSTN_CONFIG_CLASS( HardwareEchoCancellationConfig );

public:
    enum class Mode { NORMAL = 1, SPEECH_RECOGNIZER_FRIENDLY = 2, DISABLED = 3 };
    enum class ComfortNoiseMode { NORMAL = 1, DISABLED = 2 };
    enum class DoubleTalkBehavior { OPTIMAL = 1, MORE_RESIDUAL_ECHO = 2, MORE_CLIPPING = 3 };

    /// NORMAL until set.
    Mode getMode() const noexcept { return m_eMode; }
    void setMode( Mode in_eMode ) noexcept { m_eMode = in_eMode; }

    /// NORMAL until set.
    ComfortNoiseMode getComfortNoiseMode() const noexcept { return m_eComfortNoiseMode; }
    void setComfortNoiseMode( ComfortNoiseMode in_eMode ) noexcept { m_eComfortNoiseMode = in_eMode; }

    /// Where the tail of the echo begins, in milliseconds.
    unsigned int getTailDisplacement() const noexcept { return m_uTailDisplacement; }
    void setTailDisplacement( unsigned int in_uMs ) noexcept { m_uTailDisplacement = in_uMs; }

    /// OPTIMAL until set.
    DoubleTalkBehavior getDoubleTalkBehavior() const noexcept { return m_eDoubleTalkBehavior; }
    void setDoubleTalkBehavior( DoubleTalkBehavior in_eBehavior ) noexcept { m_eDoubleTalkBehavior = in_eBehavior; }

private:
    Mode m_eMode = Mode::NORMAL;
    ComfortNoiseMode m_eComfortNoiseMode = ComfortNoiseMode::NORMAL;
    unsigned int m_uTailDisplacement = 0;
    DoubleTalkBehavior m_eDoubleTalkBehavior = DoubleTalkBehavior::OPTIMAL;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

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

} // namespace Keywords

} // namespace Velquin::Pstn

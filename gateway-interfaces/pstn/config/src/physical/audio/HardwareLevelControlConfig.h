#pragma once

#include "../../reading/KeywordTable.h"
#include "LevelControlConfig.h"
#include "VoiceDirection.h"

namespace Velquin::Pstn {

/// Level control by the board's hardware.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareLevelControlConfig : public LevelControlConfig {
    PSTN_CONFIG_CLASS( HardwareLevelControlConfig );

public:
    enum class Mode { MANUAL = 1, AUTOMATIC = 2, DISABLED = 3 };
    using Direction = VoiceDirection;

    /// DISABLED until set.
    Mode getMode() const noexcept { return m_eMode; }
    void setMode( Mode in_eMode ) noexcept { m_eMode = in_eMode; }

    /// ALL until set.
    Direction getDirection() const noexcept { return m_eDirection; }
    void setDirection( Direction in_eDirection ) noexcept { m_eDirection = in_eDirection; }

    /// The gain of the MANUAL mode, in dB; a negative gain attenuates; 0 until set.
    int getGain() const noexcept { return m_nGain; }
    void setGain( int in_nGainIndB ) noexcept { m_nGain = in_nGainIndB; }

    /// The target level of the AUTOMATIC mode, in dBm0; 0 until set.
    int getTargetLevel() const noexcept { return m_nTargetLevel; }
    void setTargetLevel( int in_nLevelIndBM0 ) noexcept { m_nTargetLevel = in_nLevelIndBM0; }

private:
    Mode m_eMode = Mode::DISABLED;
    Direction m_eDirection = Direction::ALL;
    int m_nGain = 0;
    int m_nTargetLevel = 0;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto LEVEL_CONTROL_MODE = keywordTable<HardwareLevelControlConfig::Mode>( {
    { "MANUAL", HardwareLevelControlConfig::Mode::MANUAL },
    { "AUTOMATIC", HardwareLevelControlConfig::Mode::AUTOMATIC },
    { "DISABLED", HardwareLevelControlConfig::Mode::DISABLED },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

#pragma once

#include "../../reading/KeywordTable.h"
#include "BackgroundNoiseAttenuationConfig.h"
#include "VoiceDirection.h"

namespace Velquin::Pstn {

/// Attenuation of background noise by the board's hardware.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareBackgroundNoiseAttenuationConfig : public BackgroundNoiseAttenuationConfig {
    PSTN_CONFIG_CLASS( HardwareBackgroundNoiseAttenuationConfig );

public:
    enum class Mode { ENABLED = 1, DISABLED = 2 };
    using Direction = VoiceDirection;

    /// DISABLED until set.
    Mode getMode() const noexcept { return m_eMode; }
    void setMode( Mode in_eMode ) noexcept { m_eMode = in_eMode; }

    /// ALL until set.
    Direction getDirection() const noexcept { return m_eDirection; }
    void setDirection( Direction in_eDirection ) noexcept { m_eDirection = in_eDirection; }

    /// In dB; 0 until set.
    int getAttenuation() const noexcept { return m_nAttenuation; }
    void setAttenuation( int in_nAttenuationIndB ) noexcept { m_nAttenuation = in_nAttenuationIndB; }

private:
    Mode m_eMode = Mode::DISABLED;
    Direction m_eDirection = Direction::ALL;
    int m_nAttenuation = 0;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto BACKGROUND_NOISE_ATTENUATION_MODE =
    keywordTable<HardwareBackgroundNoiseAttenuationConfig::Mode>( {
        { "ENABLED", HardwareBackgroundNoiseAttenuationConfig::Mode::ENABLED },
        { "DISABLED", HardwareBackgroundNoiseAttenuationConfig::Mode::DISABLED },
    } );

} // namespace Keywords

} // namespace Velquin::Pstn

#pragma once

#include "physical/audio/BackgroundNoiseAttenuationConfig.h"
#include "physical/audio/VoiceDirection.h"

namespace Velquin::Pstn {

/// Attenuation of background noise by the board's hardware.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareBackgroundNoiseAttenuationConfig : public BackgroundNoiseAttenuationConfig {
    PSTN_CONFIG_CLASS( HardwareBackgroundNoiseAttenuationConfig );

public:
    bool isEnabled() const noexcept { return m_bEnabled; }
    void enable( bool in_bEnable ) noexcept { m_bEnabled = in_bEnable; }

    VoiceDirection getDirection() const noexcept { return m_eDirection; }
    void setDirection( VoiceDirection in_eDirection ) noexcept { m_eDirection = in_eDirection; }

    /// In dB.
    int getAttenuation() const noexcept { return m_nAttenuation; }
    void setAttenuation( int in_nAttenuationIndB ) noexcept { m_nAttenuation = in_nAttenuationIndB; }

private:
    bool m_bEnabled = false;
    VoiceDirection m_eDirection = VoiceDirection::ALL;
    int m_nAttenuation = 0;
};

} // namespace Velquin::Pstn

#pragma once

#include "physical/audio/DtmfRemovalConfig.h"
#include "physical/audio/VoiceDirection.h"

namespace Velquin::Pstn {

/// Removal of DTMF tones by the board's hardware.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareDtmfRemovalConfig : public DtmfRemovalConfig {
    PSTN_CONFIG_CLASS( HardwareDtmfRemovalConfig );

public:
    bool isEnabled() const noexcept { return m_bEnabled; }
    void enable( bool in_bEnable ) noexcept { m_bEnabled = in_bEnable; }

    VoiceDirection getDirection() const noexcept { return m_eDirection; }
    void setDirection( VoiceDirection in_eDirection ) noexcept { m_eDirection = in_eDirection; }

private:
    bool m_bEnabled = false;
    VoiceDirection m_eDirection = VoiceDirection::ALL;
};

} // namespace Velquin::Pstn

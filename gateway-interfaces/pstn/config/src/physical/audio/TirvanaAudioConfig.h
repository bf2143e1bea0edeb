#pragma once

#include "AudioConfig.h"

namespace Velquin::Pstn {

/// Audio of the interfaces of Tirvana cards.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaAudioConfig : public AudioConfig {
    PSTN_CONFIG_CLASS( TirvanaAudioConfig );

public:
    /// In milliseconds; 0 until set.
    unsigned long long getVoicePacketLength() const noexcept { return m_ullVoicePacketLength; }
    void setVoicePacketLength( unsigned long long in_ullMs ) noexcept { m_ullVoicePacketLength = in_ullMs; }

private:
    unsigned long long m_ullVoicePacketLength = 0;
};

} // namespace Velquin::Pstn

#pragma once

#include "../../reading/KeywordTable.h"
#include "DtmfRemovalConfig.h"
#include "VoiceDirection.h"

namespace Velquin::Pstn {

/// Removal of DTMF tones by the board's hardware.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareDtmfRemovalConfig : public DtmfRemovalConfig {
    PSTN_CONFIG_CLASS( HardwareDtmfRemovalConfig );

public:
    enum class Mode { ENABLED = 1, DISABLED = 2 };
    using Direction = VoiceDirection;

    /// DISABLED until set.
    Mode getMode() const noexcept { return m_eMode; }
    void setMode( Mode in_eMode ) noexcept { m_eMode = in_eMode; }

    /// ALL until set.
    Direction getDirection() const noexcept { return m_eDirection; }
    void setDirection( Direction in_eDirection ) noexcept { m_eDirection = in_eDirection; }

private:
    Mode m_eMode = Mode::DISABLED;
    Direction m_eDirection = Direction::ALL;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto DTMF_REMOVAL_MODE = keywordTable<HardwareDtmfRemovalConfig::Mode>( {
    { "ENABLED", HardwareDtmfRemovalConfig::Mode::ENABLED },
    { "DISABLED", HardwareDtmfRemovalConfig::Mode::DISABLED },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

#pragma once

#include <string>
#include <unordered_map>

#include <velquin/Object.h>
#include <velquin/TSHandle.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"
#include "AnalogDisconnectDetectorConfig.h"

namespace Velquin::Pstn {

/// How the gateway notices that the far end of an FXO line hung up. A copy shares the detectors.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogDisconnectSupervisionConfig : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogDisconnectSupervisionConfig );

public:
    using DisconnectDetectors = std::unordered_map<std::string, TSHandle<AnalogDisconnectDetectorConfig>>;

    /// The off delay when detection is off.
    static constexpr unsigned int NO_DELAY_MS = 0xFFFFFFFF;

    /// Takes ownership of the detector. Refuses and destroys it, with an ERROR line, if its name is taken. Refuses
    /// null, with an assertion.
    bool addDisconnectDetector( AnalogDisconnectDetectorConfig* in_pDetectorConfig );
    /// The detectors by name, in no order.
    const DisconnectDetectors& getDisconnectDetectorsMap() const noexcept { return m_mapDetectors; }

    /// Whether ringing that stays off counts as a hang-up; off until set.
    bool isRingCadenceDetectionEnabled() const noexcept { return m_bRingCadenceDetection; }
    void setRingCadenceDetectionState( bool in_bEnabled ) noexcept { m_bRingCadenceDetection = in_bEnabled; }

    /// How long, in milliseconds, the ringing must stay off; NO_DELAY_MS until set.
    unsigned int getRingCadenceOffDelayMs() const noexcept { return m_uRingCadenceOffDelayMs; }
    void setRingCadenceOffDelayMs( unsigned int in_uDelayMs ) noexcept { m_uRingCadenceOffDelayMs = in_uDelayMs; }

private:
    DisconnectDetectors m_mapDetectors = DisconnectDetectors( 100 );
    bool m_bRingCadenceDetection = false;
    unsigned int m_uRingCadenceOffDelayMs = NO_DELAY_MS;
};

} // namespace Velquin::Pstn

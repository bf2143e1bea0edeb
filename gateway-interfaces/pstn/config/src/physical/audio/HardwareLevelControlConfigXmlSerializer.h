#pragma once

#include "HardwareLevelControlConfig.h"
#include "LevelControlConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads a `LevelControl` element of type HARDWARE.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareLevelControlConfigXmlSerializer
    : public HardwareVoiceProcessingConfigXmlSerializer<HardwareLevelControlConfigXmlSerializer,
                                                        LevelControlConfigXmlSerializer, HardwareLevelControlConfig> {
    PSTN_CONFIG_CLASS( HardwareLevelControlConfigXmlSerializer );

public:
    /// Reads the element's own attributes into the new object; false after an ERROR line.
    static bool readAttributes( xmlNode* in_pElement, HardwareLevelControlConfig& out_config );
};

} // namespace Velquin::Pstn

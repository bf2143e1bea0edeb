#pragma once

#include "BackgroundNoiseAttenuationConfigXmlSerializer.h"
#include "HardwareBackgroundNoiseAttenuationConfig.h"

namespace Velquin::Pstn {

/// Reads a `BackgroundNoiseAttenuation` element of type HARDWARE.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareBackgroundNoiseAttenuationConfigXmlSerializer
    : public HardwareVoiceProcessingConfigXmlSerializer<HardwareBackgroundNoiseAttenuationConfigXmlSerializer,
                                                        BackgroundNoiseAttenuationConfigXmlSerializer,
                                                        HardwareBackgroundNoiseAttenuationConfig> {
    PSTN_CONFIG_CLASS( HardwareBackgroundNoiseAttenuationConfigXmlSerializer );

public:
    /// Reads the element's own attributes into the new object; false after an ERROR line.
    static bool readAttributes( xmlNode* in_pElement, HardwareBackgroundNoiseAttenuationConfig& out_config );
};

} // namespace Velquin::Pstn

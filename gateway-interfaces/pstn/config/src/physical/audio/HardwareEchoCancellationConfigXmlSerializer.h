#pragma once

#include "EchoCancellationConfigXmlSerializer.h"
#include "HardwareEchoCancellationConfig.h"

namespace Velquin::Pstn {

/// Reads an `EchoCancellation` element of type HARDWARE.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareEchoCancellationConfigXmlSerializer
    : public HardwareVoiceProcessingConfigXmlSerializer<HardwareEchoCancellationConfigXmlSerializer,
                                                        EchoCancellationConfigXmlSerializer,
                                                        HardwareEchoCancellationConfig> {
    PSTN_CONFIG_CLASS( HardwareEchoCancellationConfigXmlSerializer );

public:
    /// Reads the element's own attributes into the new object; false after an ERROR line.
    static bool readAttributes( xmlNode* in_pElement, HardwareEchoCancellationConfig& out_config );
};

} // namespace Velquin::Pstn

#pragma once

#include "AcousticEchoCancellationConfigXmlSerializer.h"
#include "HardwareAcousticEchoCancellationConfig.h"

namespace Velquin::Pstn {

/// Reads an `AcousticEchoCancellation` element of type HARDWARE.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareAcousticEchoCancellationConfigXmlSerializer
    : public HardwareVoiceProcessingConfigXmlSerializer<HardwareAcousticEchoCancellationConfigXmlSerializer,
                                                        AcousticEchoCancellationConfigXmlSerializer,
                                                        HardwareAcousticEchoCancellationConfig> {
    PSTN_CONFIG_CLASS( HardwareAcousticEchoCancellationConfigXmlSerializer );

public:
    /// Reads the element's own attributes into the new object; false after an ERROR line.
    static bool readAttributes( xmlNode* in_pElement, HardwareAcousticEchoCancellationConfig& out_config );
};

} // namespace Velquin::Pstn

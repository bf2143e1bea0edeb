#pragma once

#include "AcousticEchoCancellationConfig.h"
#include "VoiceProcessingConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Base of the readers of an `AcousticEchoCancellation` element.
class VELQUIN_PSTN_CONFIG_EXPORT AcousticEchoCancellationConfigXmlSerializer
    : public VoiceProcessingConfigXmlSerializer<AcousticEchoCancellationConfigXmlSerializer,
                                                AcousticEchoCancellationConfig> {
    PSTN_CONFIG_CLASS( AcousticEchoCancellationConfigXmlSerializer );
};

} // namespace Velquin::Pstn

#pragma once

#include "EchoCancellationConfig.h"
#include "VoiceProcessingConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Base of the readers of an `EchoCancellation` element.
class VELQUIN_PSTN_CONFIG_EXPORT EchoCancellationConfigXmlSerializer
    : public VoiceProcessingConfigXmlSerializer<EchoCancellationConfigXmlSerializer, EchoCancellationConfig> {
    PSTN_CONFIG_CLASS( EchoCancellationConfigXmlSerializer );
};

} // namespace Velquin::Pstn

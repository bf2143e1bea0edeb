#pragma once

#include "BackgroundNoiseAttenuationConfig.h"
#include "VoiceProcessingConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Base of the readers of a `BackgroundNoiseAttenuation` element.
class VELQUIN_PSTN_CONFIG_EXPORT BackgroundNoiseAttenuationConfigXmlSerializer
    : public VoiceProcessingConfigXmlSerializer<BackgroundNoiseAttenuationConfigXmlSerializer,
                                                BackgroundNoiseAttenuationConfig> {
    PSTN_CONFIG_CLASS( BackgroundNoiseAttenuationConfigXmlSerializer );
};

} // namespace Velquin::Pstn

#pragma once

#include "LevelControlConfig.h"
#include "VoiceProcessingConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Base of the readers of a `LevelControl` element.
class VELQUIN_PSTN_CONFIG_EXPORT LevelControlConfigXmlSerializer
    : public VoiceProcessingConfigXmlSerializer<LevelControlConfigXmlSerializer, LevelControlConfig> {
    PSTN_CONFIG_CLASS( LevelControlConfigXmlSerializer );
};

} // namespace Velquin::Pstn

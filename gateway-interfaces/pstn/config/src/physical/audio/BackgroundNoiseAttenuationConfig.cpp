#include "physical/audio/BackgroundNoiseAttenuationConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( BackgroundNoiseAttenuationConfig );

BackgroundNoiseAttenuationConfig::~BackgroundNoiseAttenuationConfig() = default;

} // namespace Velquin::Pstn

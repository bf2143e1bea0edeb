#include "physical/audio/HardwareBackgroundNoiseAttenuationConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareBackgroundNoiseAttenuationConfig );

} // namespace Velquin::Pstn

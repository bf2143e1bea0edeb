#include "physical/audio/HardwareEchoCancellationConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareEchoCancellationConfig );

} // namespace Velquin::Pstn

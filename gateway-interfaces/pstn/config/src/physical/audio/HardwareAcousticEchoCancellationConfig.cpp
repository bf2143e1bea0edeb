#include "physical/audio/HardwareAcousticEchoCancellationConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareAcousticEchoCancellationConfig );

} // namespace Velquin::Pstn

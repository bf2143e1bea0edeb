#include "physical/audio/EchoCancellationConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( EchoCancellationConfig );

} // namespace Velquin::Pstn

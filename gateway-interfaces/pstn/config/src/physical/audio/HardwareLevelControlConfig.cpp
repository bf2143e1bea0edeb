#include "physical/audio/HardwareLevelControlConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareLevelControlConfig );

} // namespace Velquin::Pstn

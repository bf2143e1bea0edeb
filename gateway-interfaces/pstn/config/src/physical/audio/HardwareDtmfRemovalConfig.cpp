#include "physical/audio/HardwareDtmfRemovalConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareDtmfRemovalConfig );

} // namespace Velquin::Pstn

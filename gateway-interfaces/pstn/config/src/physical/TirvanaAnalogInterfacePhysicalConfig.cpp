#include "physical/TirvanaAnalogInterfacePhysicalConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaAnalogInterfacePhysicalConfig );

} // namespace Velquin::Pstn

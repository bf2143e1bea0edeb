#include "hardware/TirvanaAnalogInterfaceConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaAnalogInterfaceConfig );

} // namespace Velquin::Pstn

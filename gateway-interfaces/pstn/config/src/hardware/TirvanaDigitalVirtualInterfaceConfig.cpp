#include "hardware/TirvanaDigitalVirtualInterfaceConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalVirtualInterfaceConfig );

} // namespace Velquin::Pstn

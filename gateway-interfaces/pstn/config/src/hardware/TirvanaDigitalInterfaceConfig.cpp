#include "hardware/TirvanaDigitalInterfaceConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalInterfaceConfig );

} // namespace Velquin::Pstn

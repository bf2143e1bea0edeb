#include "physical/TirvanaDigitalInterfacePhysicalConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalInterfacePhysicalConfig );

} // namespace Velquin::Pstn

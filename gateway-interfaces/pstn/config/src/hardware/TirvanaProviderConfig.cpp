#include "hardware/TirvanaProviderConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaProviderConfig );

} // namespace Velquin::Pstn

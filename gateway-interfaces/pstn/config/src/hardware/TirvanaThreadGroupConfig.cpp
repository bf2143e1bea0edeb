#include "hardware/TirvanaThreadGroupConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaThreadGroupConfig );

} // namespace Velquin::Pstn

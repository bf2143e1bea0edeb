#include "callcontrol/isdn/IsdnCommonConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnCommonConfig );

} // namespace Velquin::Pstn

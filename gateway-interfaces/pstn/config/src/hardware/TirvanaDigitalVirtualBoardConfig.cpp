#include "hardware/TirvanaDigitalVirtualBoardConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalVirtualBoardConfig );

} // namespace Velquin::Pstn

#include "hardware/TirvanaAnalogBoardConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaAnalogBoardConfig );

} // namespace Velquin::Pstn

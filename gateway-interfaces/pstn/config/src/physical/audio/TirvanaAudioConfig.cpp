#include "physical/audio/TirvanaAudioConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaAudioConfig );

} // namespace Velquin::Pstn

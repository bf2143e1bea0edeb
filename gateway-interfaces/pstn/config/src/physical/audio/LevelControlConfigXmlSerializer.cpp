#include "physical/audio/LevelControlConfigXmlSerializer.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( LevelControlConfigXmlSerializer );

} // namespace Velquin::Pstn

#include "physical/audio/LevelControlConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( LevelControlConfig );

LevelControlConfig::~LevelControlConfig() = default;

} // namespace Velquin::Pstn

#include "physical/audio/EchoCancellationConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( EchoCancellationConfig );

EchoCancellationConfig::~EchoCancellationConfig() = default;

} // namespace Velquin::Pstn

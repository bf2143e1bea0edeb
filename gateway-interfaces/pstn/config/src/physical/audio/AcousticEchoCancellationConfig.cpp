#include "physical/audio/AcousticEchoCancellationConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AcousticEchoCancellationConfig );

AcousticEchoCancellationConfig::~AcousticEchoCancellationConfig() = default;

} // namespace Velquin::Pstn

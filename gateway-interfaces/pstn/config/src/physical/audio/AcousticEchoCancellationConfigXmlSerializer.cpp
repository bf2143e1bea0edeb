#include "physical/audio/AcousticEchoCancellationConfigXmlSerializer.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AcousticEchoCancellationConfigXmlSerializer );

} // namespace Velquin::Pstn

#include "physical/audio/EchoCancellationConfigXmlSerializer.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( EchoCancellationConfigXmlSerializer );

} // namespace Velquin::Pstn

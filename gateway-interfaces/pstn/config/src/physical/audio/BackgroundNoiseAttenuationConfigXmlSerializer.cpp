#include "physical/audio/BackgroundNoiseAttenuationConfigXmlSerializer.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( BackgroundNoiseAttenuationConfigXmlSerializer );

} // namespace Velquin::Pstn

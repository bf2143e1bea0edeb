#include "physical/audio/DtmfRemovalConfigXmlSerializer.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DtmfRemovalConfigXmlSerializer );

} // namespace Velquin::Pstn

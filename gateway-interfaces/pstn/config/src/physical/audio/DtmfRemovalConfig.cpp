#include "physical/audio/DtmfRemovalConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DtmfRemovalConfig );

DtmfRemovalConfig::~DtmfRemovalConfig() = default;

} // namespace Velquin::Pstn

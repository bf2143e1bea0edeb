#include "physical/DigitalInterfacePhysicalConfig.h"

#include "Setters.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalInterfacePhysicalConfig );

bool DigitalInterfacePhysicalConfig::setDChannelConfig( DChannelConfig* in_pDChannelConfig ) {
    return setOwned( m_hDChannelConfig, in_pDChannelConfig, getLogger(), "!pDChannelConfig.isNull()" );
}

} // namespace Velquin::Pstn

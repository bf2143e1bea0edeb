#include "physical/DigitalInterfacePhysicalConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalInterfacePhysicalConfig );

bool DigitalInterfacePhysicalConfig::setDChannelConfig( DChannelConfig* in_pDChannelConfig ) try {
    const TSHandle<DChannelConfig> pDChannelConfig( in_pDChannelConfig );
    if ( !VELQUIN_ASSERT( !pDChannelConfig.isNull() ) )
        return false;
    m_hDChannelConfig = pDChannelConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

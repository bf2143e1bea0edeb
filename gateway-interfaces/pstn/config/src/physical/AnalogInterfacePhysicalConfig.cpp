#include "physical/AnalogInterfacePhysicalConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogInterfacePhysicalConfig );

bool AnalogInterfacePhysicalConfig::addApplyToAnalogInterface(
    LimitedObjPtr<AnalogInterfaceConfig> in_pAnalogInterface ) try {
    if ( !VELQUIN_ASSERT( !in_pAnalogInterface.isNull() ) )
        return false;
    m_vecApplyToInterfaces.push_back( in_pAnalogInterface );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

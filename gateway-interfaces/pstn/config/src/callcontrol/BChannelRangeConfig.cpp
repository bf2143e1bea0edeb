#include "callcontrol/BChannelRangeConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( BChannelRangeConfig );

bool BChannelRangeConfig::setInterfaceConfig( const LimitedObjPtr<const InterfaceConfig>& in_pInterfaceConfig ) try {
    if ( !VELQUIN_ASSERT( !in_pInterfaceConfig.isNull() ) )
        return false;
    m_pInterfaceConfig = in_pInterfaceConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool BChannelRangeConfig::setIsdnCommonConfig( const LimitedObjPtr<const IsdnCommonConfig>& in_pIsdnCommonConfig ) try {
    if ( !VELQUIN_ASSERT( !in_pIsdnCommonConfig.isNull() ) )
        return false;
    m_pIsdnCommonConfig = in_pIsdnCommonConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool BChannelRangeConfig::setFxoConfig( const LimitedObjPtr<const AnalogFxoConfig>& in_pFxoConfig ) try {
    if ( !VELQUIN_ASSERT( !in_pFxoConfig.isNull() ) )
        return false;
    m_pFxoConfig = in_pFxoConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool BChannelRangeConfig::setFxsConfig( const LimitedObjPtr<const AnalogFxsConfig>& in_pFxsConfig ) try {
    if ( !VELQUIN_ASSERT( !in_pFxsConfig.isNull() ) )
        return false;
    m_pFxsConfig = in_pFxsConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

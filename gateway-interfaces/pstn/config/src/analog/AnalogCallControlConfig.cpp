#include "analog/AnalogCallControlConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogCallControlConfig );

bool AnalogCallControlConfig::addFXOConfig( AnalogFxoConfig* in_pNewFxoConfig ) try {
    TSHandle<AnalogFxoConfig> pFxoConfig( in_pNewFxoConfig );
    return VELQUIN_ASSERT( !pFxoConfig.isNull() ) &&
           addNumberedConfig( m_mapFxoConfigs, pFxoConfig, "Fxo", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogCallControlConfig::addFXSConfig( AnalogFxsConfig* in_pNewFxsConfig ) try {
    TSHandle<AnalogFxsConfig> pFxsConfig( in_pNewFxsConfig );
    return VELQUIN_ASSERT( !pFxsConfig.isNull() ) &&
           addNumberedConfig( m_mapFxsConfigs, pFxsConfig, "Fxs", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogCallControlConfig::hasAnalogCallControlConfig( const char* in_szInterfaceUniqueId ) const {
    return isAnyAppliedTo( m_mapFxoConfigs, in_szInterfaceUniqueId ) ||
           isAnyAppliedTo( m_mapFxsConfigs, in_szInterfaceUniqueId );
}

} // namespace Velquin::Pstn

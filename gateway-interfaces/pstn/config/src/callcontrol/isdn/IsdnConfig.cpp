#include "callcontrol/isdn/IsdnConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnConfig );

bool IsdnConfig::addFasConfig( IsdnFasConfig* in_pFasConfig ) try {
    TSHandle<IsdnFasConfig> pFasConfig( in_pFasConfig );
    return VELQUIN_ASSERT( !pFasConfig.isNull() ) &&
           addNumberedConfig( m_mapFasConfigs, pFasConfig, "Fas", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool IsdnConfig::addNfasConfig( IsdnNfasConfig* in_pNFasConfig ) try {
    TSHandle<IsdnNfasConfig> pNFasConfig( in_pNFasConfig );
    return VELQUIN_ASSERT( !pNFasConfig.isNull() ) &&
           addNumberedConfig( m_mapNfasConfigs, pNFasConfig, "NFas", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool IsdnConfig::hasIsdnCallControlConfig( const char* in_szUniqueId ) const try {
    return VELQUIN_ASSERT( in_szUniqueId != nullptr ) &&
           ( isAnyAppliedTo( m_mapFasConfigs, in_szUniqueId ) || isAnyAppliedTo( m_mapNfasConfigs, in_szUniqueId ) );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

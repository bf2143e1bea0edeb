#include "callcontrol/isdn/IsdnConfig.h"

#include <algorithm>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnConfig );

namespace {

/// @param in_szKind "Fas" or "NFas", as the messages have it
template <class TConfig>
bool addGroup( std::map<unsigned int, TSHandle<TConfig>>& inout_mapConfigs, const TSHandle<TConfig>& in_hConfig,
               const char* in_szKind, const Logger& in_logger ) {
    VELQUIN_LOG_DEBUG( in_logger, "adding new " << in_szKind << " config: " << in_hConfig->getId() );
    if ( inout_mapConfigs.try_emplace( in_hConfig->getId(), in_hConfig ).second )
        return true;
    VELQUIN_REPORT_ERROR( in_logger, "failed to add " << in_szKind << " config : " << in_hConfig->getId() );
    return false;
}

template <class TConfigs>
bool isAnyAppliedTo( const TConfigs& in_mapConfigs, const char* in_szUniqueId ) {
    return std::any_of( in_mapConfigs.begin(), in_mapConfigs.end(), [in_szUniqueId]( const auto& in_entry ) {
        return in_entry.second->isAppliedToInterface( in_szUniqueId );
    } );
}

} // namespace

bool IsdnConfig::addFasConfig( IsdnFasConfig* in_pFasConfig ) try {
    const TSHandle<IsdnFasConfig> pFasConfig( in_pFasConfig );
    return VELQUIN_ASSERT( !pFasConfig.isNull() ) && addGroup( m_mapFasConfigs, pFasConfig, "Fas", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool IsdnConfig::addNfasConfig( IsdnNfasConfig* in_pNFasConfig ) try {
    const TSHandle<IsdnNfasConfig> pNFasConfig( in_pNFasConfig );
    return VELQUIN_ASSERT( !pNFasConfig.isNull() ) && addGroup( m_mapNfasConfigs, pNFasConfig, "NFas", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool IsdnConfig::hasIsdnCallControlConfig( const char* in_szUniqueId ) const try {
    return VELQUIN_ASSERT( in_szUniqueId != nullptr ) &&
           ( isAnyAppliedTo( m_mapFasConfigs, in_szUniqueId ) || isAnyAppliedTo( m_mapNfasConfigs, in_szUniqueId ) );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

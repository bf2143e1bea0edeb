#include "analog/AnalogCallControlConfig.h"

#include <algorithm>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogCallControlConfig );

namespace {

/// Adds the configuration unless its number is taken; the handle that was passed is then the last one.
template <class TConfig>
bool add( std::map<unsigned int, TSHandle<TConfig>>& inout_mapConfigs, const TSHandle<TConfig>& in_hConfig,
          const char* in_szKind, const Logger& in_logger ) {
    VELQUIN_LOG_DEBUG( in_logger, "adding new " << in_szKind << " config: " << in_hConfig->getId() );
    if ( inout_mapConfigs.try_emplace( in_hConfig->getId(), in_hConfig ).second )
        return true;
    VELQUIN_REPORT_ERROR( in_logger, "failed to add " << in_szKind << " config : " << in_hConfig->getId() );
    return false;
}

template <class TConfigs>
bool isAnyAppliedTo( const TConfigs& in_mapConfigs, const char* in_szInterfaceUniqueId ) {
    return std::any_of( in_mapConfigs.begin(), in_mapConfigs.end(), [&]( const auto& in_entry ) {
        return in_entry.second->isAppliedToInterface( in_szInterfaceUniqueId );
    } );
}

} // namespace

bool AnalogCallControlConfig::addFXOConfig( AnalogFxoConfig* in_pNewFxoConfig ) try {
    const TSHandle<AnalogFxoConfig> pFxoConfig( in_pNewFxoConfig );
    return VELQUIN_ASSERT( !pFxoConfig.isNull() ) && add( m_mapFxoConfigs, pFxoConfig, "Fxo", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogCallControlConfig::addFXSConfig( AnalogFxsConfig* in_pNewFxsConfig ) try {
    const TSHandle<AnalogFxsConfig> pFxsConfig( in_pNewFxsConfig );
    return VELQUIN_ASSERT( !pFxsConfig.isNull() ) && add( m_mapFxsConfigs, pFxsConfig, "Fxs", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogCallControlConfig::hasAnalogCallControlConfig( const char* in_szInterfaceUniqueId ) const {
    return isAnyAppliedTo( m_mapFxoConfigs, in_szInterfaceUniqueId ) ||
           isAnyAppliedTo( m_mapFxsConfigs, in_szInterfaceUniqueId );
}

} // namespace Velquin::Pstn

#pragma once

#include <algorithm>
#include <map>

#include <velquin/Finding.h>
#include <velquin/TSHandle.h>

#include "../AppendUnique.h"
#include "../RuleNames.h"

namespace Velquin::Pstn {

/// Configurations of one kind (FAS, NFAS, FXO, FXS), ascending by number. Each applies to interfaces.
template <class TConfig>
using NumberedConfigs = std::map<unsigned int, TSHandle<TConfig>>;

/// Adds the configuration unless its number is taken. Moves from the handle only if it adds the configuration. May
/// throw.
/// @param in_szKind "Fas", "NFas", "Fxo" or "Fxs", as in the messages
template <class TConfig>
bool addNumberedConfig( NumberedConfigs<TConfig>& inout_mapConfigs, TSHandle<TConfig>& inout_hConfig,
                        const char* in_szKind, const Logger& in_logger ) {
    VELQUIN_LOG_DEBUG( in_logger, "adding new " << in_szKind << " config: " << inout_hConfig->getId() );
    if ( appendUnique( inout_mapConfigs, inout_hConfig->getId(), inout_hConfig ) )
        return true;
    VELQUIN_REPORT( in_logger, ( Fault{ Rules::IDENTIFIER_TWICE, "ID", std::to_string( inout_hConfig->getId() ) } ),
                    "failed to add " << in_szKind << " config : " << inout_hConfig->getId() );
    return false;
}

/// Whether one of them applies to the interface of that long unique identifier. Asks one after the other.
template <class TConfig>
bool isAnyAppliedTo( const NumberedConfigs<TConfig>& in_mapConfigs, const char* in_szUniqueId ) {
    return std::any_of( in_mapConfigs.begin(), in_mapConfigs.end(), [in_szUniqueId]( const auto& in_entry ) {
        return in_entry.second->isAppliedToInterface( in_szUniqueId );
    } );
}

} // namespace Velquin::Pstn

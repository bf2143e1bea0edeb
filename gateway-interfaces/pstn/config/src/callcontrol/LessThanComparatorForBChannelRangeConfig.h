#pragma once

#include <velquin/TSHandle.h>

#include "PstnConfigExport.h"
#include "callcontrol/BChannelRangeConfig.h"

namespace Velquin::Pstn {

/// Orders ranges by board, interface, channel. Two ranges of one interface are equivalent exactly when they share a
/// channel. The ranges must have their interface, and that its board. The handles are held by the caller.
class VELQUIN_PSTN_CONFIG_EXPORT LessThanComparatorForBChannelRangeConfig {
public:
    bool operator()( const TSHandle<BChannelRangeConfig>& in_hX, const TSHandle<BChannelRangeConfig>& in_hY ) const;
};

} // namespace Velquin::Pstn

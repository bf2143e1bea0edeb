#pragma once

#include <velquin/TSHandle.h>

#include "../PstnConfigExport.h"
#include "BChannelRangeConfig.h"

namespace Velquin::Pstn {

/// Orders ranges by board, interface, channel; of an analog and a digital interface with the same numbers, the analog
/// one goes first. Two ranges of one interface are equivalent exactly when they share a channel; one whose first
/// channel is greater than its last takes the channels from this to that. The ranges must have their interface, and
/// that its board. The handles are held by the caller.
class VELQUIN_PSTN_CONFIG_EXPORT LessThanComparatorForBChannelRangeConfig {
public:
    bool operator()( const TSHandle<BChannelRangeConfig>& in_hX, const TSHandle<BChannelRangeConfig>& in_hY ) const;
};

} // namespace Velquin::Pstn

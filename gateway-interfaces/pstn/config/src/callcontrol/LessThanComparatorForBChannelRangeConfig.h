#pragma once

#include <velquin/TSHandle.h>

#include "../PstnConfigExport.h"
#include "BChannelRangeConfig.h"

namespace Velquin::Pstn {

/// Orders ranges by board, interface, channel. If an analog and a digital interface have the same numbers, the analog
/// one goes first. Two ranges of one interface are equivalent if they share a channel. A range whose first channel is
/// greater than its last counts with all channels between them. The ranges must have an interface, and the interface a
/// board. The caller holds the handles.
class VELQUIN_PSTN_CONFIG_EXPORT LessThanComparatorForBChannelRangeConfig {
public:
    bool operator()( const TSHandle<BChannelRangeConfig>& in_hX, const TSHandle<BChannelRangeConfig>& in_hY ) const;
};

} // namespace Velquin::Pstn

#include "callcontrol/LessThanComparatorForBChannelRangeConfig.h"

#include "hardware/BoardConfig.h"
#include "hardware/InterfaceConfig.h"

namespace Velquin::Pstn {

bool LessThanComparatorForBChannelRangeConfig::operator()( const TSHandle<BChannelRangeConfig>& in_hX,
                                                           const TSHandle<BChannelRangeConfig>& in_hY ) const {
    const InterfaceConfig& x = *in_hX->getInterfaceConfig();
    const InterfaceConfig& y = *in_hY->getInterfaceConfig();
    if ( x.getBoardConfig()->getId() != y.getBoardConfig()->getId() )
        return x.getBoardConfig()->getId() < y.getBoardConfig()->getId();
    if ( x.getId() != y.getId() )
        return x.getId() < y.getId();
    return in_hX->getLastChannel() < in_hY->getFirstChannel();
}

} // namespace Velquin::Pstn

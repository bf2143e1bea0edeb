#include "callcontrol/LessThanComparatorForBChannelRangeConfig.h"

#include <algorithm>

#include "hardware/AnalogInterfaceConfig.h"
#include "hardware/BoardConfig.h"

namespace Velquin::Pstn {

bool LessThanComparatorForBChannelRangeConfig::operator()( const TSHandle<BChannelRangeConfig>& in_hX,
                                                           const TSHandle<BChannelRangeConfig>& in_hY ) const {
    const InterfaceConfig& x = *in_hX->getInterfaceConfig();
    const InterfaceConfig& y = *in_hY->getInterfaceConfig();
    if ( x.getBoardConfig()->getId() != y.getBoardConfig()->getId() )
        return x.getBoardConfig()->getId() < y.getBoardConfig()->getId();
    if ( x.getId() != y.getId() )
        return x.getId() < y.getId();
    if ( &x != &y && isAnalog( x ) != isAnalog( y ) )
        return isAnalog( x );
    // Not the last channel of one and the first of the other: a range with swapped ends would then stand before itself.
    return std::max( in_hX->getFirstChannel(), in_hX->getLastChannel() ) <
           std::min( in_hY->getFirstChannel(), in_hY->getLastChannel() );
}

} // namespace Velquin::Pstn

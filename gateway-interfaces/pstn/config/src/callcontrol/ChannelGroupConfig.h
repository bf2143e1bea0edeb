#pragma once

#include <set>
#include <string>

#include <velquin/PSTNChannel.h>

#include "../reading/KeywordTable.h"
#include "LessThanComparatorForBChannelRangeConfig.h"

namespace Velquin::Pstn {

/// A pool of channels. The gateway's router addresses it by name. Owns its ranges.
class VELQUIN_PSTN_CONFIG_EXPORT ChannelGroupConfig : public virtual Object {
    PSTN_CONFIG_CLASS( ChannelGroupConfig );

public:
    /// The order in which an outbound call looks for a free channel.
    enum HuntingScheme { LINEAR = 1, REVERSE_LINEAR = 2 };
    using BChannelRanges = std::set<TSHandle<BChannelRangeConfig>, LessThanComparatorForBChannelRangeConfig>;

    /// The name, unique among the groups; empty until set.
    const char* getId() const noexcept { return m_strId.c_str(); }
    /// Refuses null, with an assertion.
    bool setId( const char* in_szId );

    /// BIDIR until set.
    PSTNChannel::Direction getDirection() const noexcept { return m_eDirection; }
    void setDirection( PSTNChannel::Direction in_eDirection ) noexcept { m_eDirection = in_eDirection; }

    /// LINEAR until set. Has no meaning for a group of direction IN.
    HuntingScheme getOutboundHuntingScheme() const noexcept { return m_eOutboundHuntingScheme; }
    void setOutboundHuntingScheme( HuntingScheme in_eScheme ) noexcept { m_eOutboundHuntingScheme = in_eScheme; }

    /// Takes ownership of a range. Refuses null, and a range without interface, with an assertion. Refuses and releases
    /// a range that shares a channel with another range of this group. A channel may be in several groups.
    bool addBChannelRangeConfig( BChannelRangeConfig* in_pNewBChannelRangeConfig );
    /// The ranges by board, interface, channel.
    const BChannelRanges& getBChannelRangeConfig() const noexcept { return m_setBChannelRanges; }

private:
    std::string m_strId;
    PSTNChannel::Direction m_eDirection = PSTNChannel::BIDIR;
    HuntingScheme m_eOutboundHuntingScheme = LINEAR;
    BChannelRanges m_setBChannelRanges;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto CHANNEL_DIRECTION = keywordTable<PSTNChannel::Direction>( {
    { "IN", PSTNChannel::IN },
    { "OUT", PSTNChannel::OUT },
    { "BIDIR", PSTNChannel::BIDIR },
} );
inline constexpr auto HUNTING_SCHEME = keywordTable<ChannelGroupConfig::HuntingScheme>( {
    { "LINEAR", ChannelGroupConfig::LINEAR },
    { "REVERSE_LINEAR", ChannelGroupConfig::REVERSE_LINEAR },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

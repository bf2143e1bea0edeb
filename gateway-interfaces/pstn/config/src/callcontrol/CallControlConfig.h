#pragma once

#include <map>
#include <string>

#include <velquin/TSHandle.h>

#include "../analog/AnalogCallControlConfig.h"
#include "ChannelGroupConfig.h"
#include "isdn/IsdnConfig.h"

namespace Velquin::Pstn {

/// Root of call control: owns the channel groups and the ISDN and analog call control. Adders and setters take
/// ownership of their argument, even when they refuse it.
class VELQUIN_PSTN_CONFIG_EXPORT CallControlConfig : public virtual Object {
    PSTN_CONFIG_CLASS( CallControlConfig );

public:
    using ChannelGroups = std::map<std::string, TSHandle<ChannelGroupConfig>>;

    /// Takes ownership of the group. Refuses and destroys it if its identifier is taken. Refuses null, with an
    /// assertion.
    bool addChannelGroupConfig( ChannelGroupConfig* in_pNewChannelGroupConfig );
    /// The group of that identifier; null, after an ERROR line, when there is none or the identifier is null.
    TSHandle<ChannelGroupConfig> getChannelGroupConfig( const char* in_szId ) const;
    /// All groups, ordered by identifier.
    const ChannelGroups& getChannelGroupsConfig() const noexcept { return m_mapChannelGroups; }

    /// Replaces the ISDN call control. Refuses null, with an assertion.
    bool setIsdnConfig( IsdnConfig* in_pIsdnConfig );
    /// Null until set.
    const TSHandle<IsdnConfig>& getIsdnConfig() const noexcept { return m_hIsdnConfig; }

    /// Replaces the analog call control. Refuses null, with an assertion.
    bool setAnalogConfig( AnalogCallControlConfig* in_pAnalogConfig );
    /// Null until set.
    const TSHandle<AnalogCallControlConfig>& getAnalogConfig() const noexcept { return m_hAnalogConfig; }

private:
    ChannelGroups m_mapChannelGroups;
    TSHandle<IsdnConfig> m_hIsdnConfig;
    TSHandle<AnalogCallControlConfig> m_hAnalogConfig;
};

} // namespace Velquin::Pstn

#include "callcontrol/CallControlConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "AppendUnique.h"
#include "RuleNames.h"
#include "Setters.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( CallControlConfig );

bool CallControlConfig::addChannelGroupConfig( ChannelGroupConfig* in_pNewChannelGroupConfig ) try {
    TSHandle<ChannelGroupConfig> hNewChannelGroupConfig( in_pNewChannelGroupConfig );
    if ( !VELQUIN_ASSERT( in_pNewChannelGroupConfig ) )
        return false;
    VELQUIN_LOG_DEBUG( getLogger(), "adding new channel group: " << hNewChannelGroupConfig->getId() );
    if ( appendUnique( m_mapChannelGroups, hNewChannelGroupConfig->getId(), hNewChannelGroupConfig ) )
        return true;
    VELQUIN_REPORT( getLogger(), ( Fault{ Rules::IDENTIFIER_TWICE, "ID", hNewChannelGroupConfig->getId() } ),
                    "failed to all new channel group: " << hNewChannelGroupConfig->getId() );
    return false;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

TSHandle<ChannelGroupConfig> CallControlConfig::getChannelGroupConfig( const char* in_szId ) const try {
    if ( !VELQUIN_ASSERT( in_szId != nullptr ) )
        return {};
    VELQUIN_LOG_DEBUG( getLogger(), "getting channel group: " << in_szId );
    const auto it = m_mapChannelGroups.find( in_szId );
    if ( it != m_mapChannelGroups.end() )
        return it->second;
    VELQUIN_REPORT( getLogger(), ( Fault{ Rules::UNKNOWN_CHANNEL_GROUP, "channelGroupID", in_szId } ),
                    "failed to get channel group: " << in_szId );
    return {};
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool CallControlConfig::setIsdnConfig( IsdnConfig* in_pIsdnConfig ) {
    return setOwned( m_hIsdnConfig, in_pIsdnConfig, getLogger(), "!pIsdnConfig.isNull()" );
}

bool CallControlConfig::setAnalogConfig( AnalogCallControlConfig* in_pAnalogConfig ) {
    return setOwned( m_hAnalogConfig, in_pAnalogConfig, getLogger(), "!pAnalogConfig.isNull()" );
}

} // namespace Velquin::Pstn

#include "callcontrol/ChannelGroupConfig.h"

#include <ostream>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "AppendUnique.h"
#include "RuleNames.h"
#include "Text.h"
#include "hardware/InterfaceConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( ChannelGroupConfig );

namespace {

/// How the log lines about adding a range begin.
struct Adding {
    const BChannelRangeConfig& m_range;
    const char* m_szGroupId;

    friend std::ostream& operator<<( std::ostream& inout_stream, const Adding& in_adding ) {
        return inout_stream << "Add B-Channel range "
                            << "[" << in_adding.m_range.getFirstChannel() << ".." << in_adding.m_range.getLastChannel()
                            << "] of " << in_adding.m_range.getInterfaceConfig()->getUniqueId( false )
                            << " to channelGroup \"" << in_adding.m_szGroupId << "\"";
    }
};

} // namespace

bool ChannelGroupConfig::setId( const char* in_szId ) {
    return assignText( m_strId, in_szId, getLogger() );
}

bool ChannelGroupConfig::addBChannelRangeConfig( BChannelRangeConfig* in_pNewBChannelRangeConfig ) try {
    TSHandle<BChannelRangeConfig> hNewBChannelRangeConfig( in_pNewBChannelRangeConfig );
    if ( !VELQUIN_ASSERT( in_pNewBChannelRangeConfig ) ||
         !VELQUIN_ASSERT( !hNewBChannelRangeConfig->getInterfaceConfig().isNull() ) ||
         !VELQUIN_ASSERT( !hNewBChannelRangeConfig->getInterfaceConfig()->getBoardConfig().isNull() ) )
        return false;
    const Adding adding{ *hNewBChannelRangeConfig, getId() };
    VELQUIN_LOG_DEBUG( getLogger(), adding );
    if ( appendUnique( m_setBChannelRanges, hNewBChannelRangeConfig ) )
        return true;
    VELQUIN_REPORT( getLogger(), ( Fault{ Rules::CHANNEL_TWICE, "channelGroupID", getId() } ),
                    adding << ". One more channel of this range are already contained in this group. Please edit "
                              "your PSTN configuration to fix this problem.  Make sure to add any channel only "
                              "once in a given channel group." );
    return false;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

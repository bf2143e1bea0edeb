#include "callcontrol/isdn/IsdnNfasGroupMemberConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "RuleNames.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnNfasGroupMemberConfig );

std::atomic<unsigned long long> IsdnNfasGroupMemberConfig::s_ullIdChanges{ 0 };

IsdnNfasGroupMemberConfig::IsdnNfasGroupMemberConfig( const IsdnNfasGroupMemberConfig& in_other ) noexcept
    : Object( in_other ),
      m_ullNfasInterfaceID( in_other.m_ullNfasInterfaceID ),
      m_hInterfaceConfig( in_other.m_hInterfaceConfig ),
      m_eDChannelMode( in_other.m_eDChannelMode ) {}

IsdnNfasGroupMemberConfig& IsdnNfasGroupMemberConfig::operator=( const IsdnNfasGroupMemberConfig& in_other ) noexcept {
    setNfasInterfaceID( in_other.m_ullNfasInterfaceID );
    m_hInterfaceConfig = in_other.m_hInterfaceConfig;
    m_eDChannelMode = in_other.m_eDChannelMode;
    return *this;
}

void IsdnNfasGroupMemberConfig::setNfasInterfaceID( unsigned long long in_ullId ) noexcept {
    m_ullNfasInterfaceID = in_ullId;
    if ( m_bInGroup )
        s_ullIdChanges.fetch_add( 1, std::memory_order_relaxed );
}

bool IsdnNfasGroupMemberConfig::setInterfaceMember( TSHandle<DigitalInterfaceConfig> in_hInterfaceConfig ) try {
    if ( !VELQUIN_ASSERT( !in_hInterfaceConfig.isNull() ) )
        return false;
    const bool bDChannel = in_hInterfaceConfig->hasDChannel();
    const char* const szUniqueId = in_hInterfaceConfig->getUniqueId( false );
    if ( m_eDChannelMode != DChannelMode::DISABLED && !bDChannel ) {
        VELQUIN_REPORT(
            getLogger(), Fault{ Rules::withoutDChannel( !in_hInterfaceConfig->getPhysicalConfig().isNull() ) },
            "failed to add interface " << szUniqueId
                                       << " to NFAS group because the interface does not have a D-Channel to "
                                          "play the role of PRIMARY or BACKUP interface." );
        return false;
    }
    if ( m_eDChannelMode == DChannelMode::DISABLED && bDChannel ) {
        VELQUIN_REPORT( getLogger(), Fault{ Rules::UNUSED_D_CHANNEL },
                        "failed to add interface "
                            << szUniqueId
                            << " to NFAS group as a slave because the D-Channel Mode of the "
                               "interface is set to DISABLED, but the D-Channel is ENABLED in the "
                               "physical configuration." );
        return false;
    }
    VELQUIN_LOG_DEBUG( getLogger(), "adding interface=" << szUniqueId << " to ISDN NFAS group nfasInterfaceID="
                                                        << m_ullNfasInterfaceID );
    m_hInterfaceConfig = std::move( in_hInterfaceConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

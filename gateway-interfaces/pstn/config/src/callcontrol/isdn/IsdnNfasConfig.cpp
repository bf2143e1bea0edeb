#include "callcontrol/isdn/IsdnNfasConfig.h"

#include <algorithm>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "RuleNames.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnNfasConfig );

bool IsdnNfasConfig::addMemberInterface( TSHandle<IsdnNfasGroupMemberConfig>& in_hNfasGroupMember ) try {
    if ( !VELQUIN_ASSERT( !in_hNfasGroupMember.isNull() ) ||
         !VELQUIN_ASSERT( !in_hNfasGroupMember->getInterfaceConfig().isNull() ) )
        return false;
    indexMembers();
    const char* const szUniqueId = in_hNfasGroupMember->getInterfaceConfig()->getUniqueId( false );
    const unsigned long long ullNfasInterfaceID = in_hNfasGroupMember->getNfasInterfaceID();
    if ( const auto it = m_membersByNfasInterfaceID.find( ullNfasInterfaceID );
         it != m_membersByNfasInterfaceID.end() ) {
        VELQUIN_REPORT(
            getLogger(),
            ( Fault{ Rules::IDENTIFIER_TWICE, "nfasInterfaceID", std::to_string( ullNfasInterfaceID ), "" } ),
            "failed to insert the interface "
                << szUniqueId << " in NFAS group " << getId() << " because the NfasInterfaceID=" << ullNfasInterfaceID
                << " is already used by interface " << it->second->getInterfaceConfig()->getUniqueId( false ) );
        return false;
    }
    if ( !m_members.insert( szUniqueId, in_hNfasGroupMember ) ) {
        VELQUIN_REPORT( getLogger(), Fault{ Rules::NFAS_MEMBER_TWICE },
                        "interface " << szUniqueId << " is already associated with NFAS group " << getId() );
        return false;
    }
    in_hNfasGroupMember->m_bInGroup = true;
    VELQUIN_LOG_DEBUG( getLogger(), "associated interface= " << szUniqueId << " with ISDN Nfas config " << getId() );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

/// Brings the index up to date: adds the new members or, after an identifier changed, all members.
void IsdnNfasConfig::indexMembers() {
    const unsigned long long ullIdChanges = IsdnNfasGroupMemberConfig::s_ullIdChanges.load( std::memory_order_relaxed );
    if ( m_ullIndexedIdChanges != ullIdChanges ) {
        m_membersByNfasInterfaceID = {};
        m_uIndexedMembers = 0;
        m_ullIndexedIdChanges = ullIdChanges;
    }
    for ( ; m_uIndexedMembers < m_members.size(); ++m_uIndexedMembers ) {
        const auto& hMember = m_members.begin()[static_cast<std::ptrdiff_t>( m_uIndexedMembers )].second;
        m_membersByNfasInterfaceID.insert( hMember->getNfasInterfaceID(), hMember.get() );
    }
}

bool IsdnNfasConfig::hasPrimaryDChannel() const noexcept {
    return std::any_of( m_members.begin(), m_members.end(), []( const auto& in_member ) {
        return in_member.second->getDChannelMode() == IsdnNfasGroupMemberConfig::DChannelMode::PRIMARY;
    } );
}

bool IsdnNfasConfig::isAppliedToInterface( const char* in_szUniqueId ) const try {
    return VELQUIN_ASSERT( in_szUniqueId != nullptr ) && m_members.find( in_szUniqueId ) != m_members.end();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

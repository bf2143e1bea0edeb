#pragma once

#include <cstddef>
#include <string>

#include <velquin/HashMapVector.h>
#include <velquin/LimitedObjPtr.h>
#include <velquin/TSHandle.h>

#include "IsdnCommonConfig.h"
#include "IsdnNfasGroupMemberConfig.h"

namespace Velquin::Pstn {

/// A group of spans with non-facility-associated signalling: one D-channel, with an optional backup, serves all spans.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnNfasConfig : public IsdnCommonConfig {
    PSTN_CONFIG_CLASS( IsdnNfasConfig );

public:
    /// The members, by the long unique identifier of their interface, in the order in which they were added.
    using Members = HashMapVector<std::string, TSHandle<IsdnNfasGroupMemberConfig>>;

    /// Adds a member, which must have an interface. Refuses it if another member has its NFAS interface identifier now,
    /// or if its interface is already in the group.
    bool addMemberInterface( TSHandle<IsdnNfasGroupMemberConfig>& in_hNfasGroupMember );
    const Members& getMemberInterfaces() const noexcept { return m_members; }

    /// Whether a member carries the active D-channel. Nothing here checks that exactly one does.
    bool hasPrimaryDChannel() const noexcept;
    /// Whether the interface of that long unique identifier is a member.
    bool isAppliedToInterface( const char* in_szUniqueId ) const;

private:
    void indexMembers();

    Members m_members;
    // The identifiers of the members indexed so far. They hold until the identifier of any member changes. Without this
    // index, the cost of adding members would grow with the square of their number.
    HashMapVector<unsigned long long, LimitedObjPtr<const IsdnNfasGroupMemberConfig>> m_membersByNfasInterfaceID;
    std::size_t m_uIndexedMembers = 0;
    unsigned long long m_ullIndexedIdChanges = 0;
};

} // namespace Velquin::Pstn

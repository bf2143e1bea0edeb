#pragma once

#include <cstddef>
#include <string>

#include <velquin/HashMapVector.h>
#include <velquin/LimitedObjPtr.h>
#include <velquin/TSHandle.h>

#include "IsdnCommonConfig.h"
#include "IsdnNfasGroupMemberConfig.h"

namespace Velquin::Pstn {

/// A group of spans with non-facility-associated signalling: one D-channel, with an optional backup, serves them all.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnNfasConfig : public IsdnCommonConfig {
    PSTN_CONFIG_CLASS( IsdnNfasConfig );

public:
    /// By the long unique identifier of the member's interface, in the order in which they were added.
    using Members = HashMapVector<std::string, TSHandle<IsdnNfasGroupMemberConfig>>;

    /// Adds a member, which has its interface. Refuses one whose NFAS interface identifier another member has at that
    /// moment, and one whose interface is already in the group.
    bool addMemberInterface( TSHandle<IsdnNfasGroupMemberConfig>& in_hNfasGroupMember );
    const Members& getMemberInterfaces() const noexcept { return m_members; }

    /// Whether a member carries the active D-channel; nothing here demands that exactly one does.
    bool hasPrimaryDChannel() const noexcept;
    /// Whether the interface of that long unique identifier is a member.
    bool isAppliedToInterface( const char* in_szUniqueId ) const;

private:
    void indexMembers();

    Members m_members;
    // The identifiers of the first members, as they were after so many changes: asking every member anew, for each that
    // is added, would take the square of their number.
    HashMapVector<unsigned long long, LimitedObjPtr<const IsdnNfasGroupMemberConfig>> m_membersByNfasInterfaceID;
    std::size_t m_uIndexedMembers = 0;
    unsigned long long m_ullIndexedIdChanges = 0;
};

} // namespace Velquin::Pstn

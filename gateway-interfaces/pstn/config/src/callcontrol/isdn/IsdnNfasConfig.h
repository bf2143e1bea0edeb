#pragma once

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

    /// Adds a member, which has its interface. Refuses one whose NFAS interface identifier, or whose interface, is
    /// already in the group.
    bool addMemberInterface( TSHandle<IsdnNfasGroupMemberConfig>& in_hNfasGroupMember );
    const Members& getMemberInterfaces() const noexcept { return m_members; }

    /// Whether a member carries the active D-channel; nothing here demands that exactly one does.
    bool hasPrimaryDChannel() const noexcept;
    /// Whether the interface of that long unique identifier is a member.
    bool isAppliedToInterface( const char* in_szUniqueId ) const;

private:
    Members m_members;
    HashMapVector<unsigned long long, LimitedObjPtr<const IsdnNfasGroupMemberConfig>> m_membersByNfasInterfaceID;
};

} // namespace Velquin::Pstn

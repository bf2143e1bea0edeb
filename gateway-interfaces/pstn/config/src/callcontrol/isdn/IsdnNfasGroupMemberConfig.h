#pragma once

#include <atomic>

#include <velquin/TSHandle.h>

#include "../../hardware/DigitalInterfaceConfig.h"
#include "../../reading/KeywordTable.h"

namespace Velquin::Pstn {

/// One span of an NFAS group.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnNfasGroupMemberConfig : public virtual Object {
    PSTN_CONFIG_CLASS( IsdnNfasGroupMemberConfig );

public:
    /// What the span does for the signalling of its group.
    enum class DChannelMode {
        DISABLED = 1, ///< has no D-channel
        PRIMARY = 2,  ///< carries the active D-channel
        BACKUP = 3,   ///< carries the standby D-channel
    };

    IsdnNfasGroupMemberConfig() noexcept = default;
    /// A copy belongs to no group. A member that is assigned to stays in its group.
    IsdnNfasGroupMemberConfig( const IsdnNfasGroupMemberConfig& in_other ) noexcept;
    IsdnNfasGroupMemberConfig& operator=( const IsdnNfasGroupMemberConfig& in_other ) noexcept;

    /// The number by which the signalling names the span, unique in the group.
    unsigned long long getNfasInterfaceID() const noexcept { return m_ullNfasInterfaceID; }
    void setNfasInterfaceID( unsigned long long in_ullId ) noexcept;

    /// DISABLED until set.
    DChannelMode getDChannelMode() const noexcept { return m_eDChannelMode; }
    void setDChannelMode( DChannelMode in_eMode ) noexcept { m_eDChannelMode = in_eMode; }

    /// The span, which the member shares with the board; null until set.
    const TSHandle<DigitalInterfaceConfig>& getInterfaceConfig() const noexcept { return m_hInterfaceConfig; }
    /// Call it after setDChannelMode. Refuses a span without D-channel for PRIMARY and BACKUP, and a span with
    /// D-channel for DISABLED.
    bool setInterfaceMember( TSHandle<DigitalInterfaceConfig> in_hInterfaceConfig );

private:
    friend class IsdnNfasConfig;

    /// How often any member in this process got another identifier. Groups check with it whether their index still
    /// holds.
    static std::atomic<unsigned long long> s_ullIdChanges;

    unsigned long long m_ullNfasInterfaceID = 0;
    TSHandle<DigitalInterfaceConfig> m_hInterfaceConfig;
    DChannelMode m_eDChannelMode = DChannelMode::DISABLED;
    bool m_bInGroup = false;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto NFAS_D_CHANNEL_MODE = keywordTable<IsdnNfasGroupMemberConfig::DChannelMode>( {
    { "DISABLED", IsdnNfasGroupMemberConfig::DChannelMode::DISABLED },
    { "PRIMARY", IsdnNfasGroupMemberConfig::DChannelMode::PRIMARY },
    { "BACKUP", IsdnNfasGroupMemberConfig::DChannelMode::BACKUP },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

#pragma once

#include "../NumberedConfigs.h"
#include "IsdnFasConfig.h"
#include "IsdnNfasConfig.h"

namespace Velquin::Pstn {

/// ISDN call control: the FAS and the NFAS groups. A FAS and an NFAS group may have the same identifier. The adders
/// take ownership of their argument, even when they refuse it.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnConfig : public virtual Object {
    PSTN_CONFIG_CLASS( IsdnConfig );

public:
    /// Groups, ascending by identifier.
    using FasConfigs = NumberedConfigs<IsdnFasConfig>;
    using NfasConfigs = NumberedConfigs<IsdnNfasConfig>;

    /// Refuses a group whose identifier is taken among the groups of its kind.
    bool addFasConfig( IsdnFasConfig* in_pFasConfig );
    bool addNfasConfig( IsdnNfasConfig* in_pNFasConfig );

    const FasConfigs& getFasConfigs() const noexcept { return m_mapFasConfigs; }
    const NfasConfigs& getNfasConfigs() const noexcept { return m_mapNfasConfigs; }

    /// Whether a group applies to the interface of that long unique identifier. Asks group after group: for many
    /// interfaces, go through the groups once instead.
    bool hasIsdnCallControlConfig( const char* in_szUniqueId ) const;

private:
    FasConfigs m_mapFasConfigs;
    NfasConfigs m_mapNfasConfigs;
};

} // namespace Velquin::Pstn

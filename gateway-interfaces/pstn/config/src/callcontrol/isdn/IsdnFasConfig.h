#pragma once

#include <vector>

#include <velquin/TSHandle.h>

#include "../../hardware/DigitalInterfaceConfig.h"
#include "IsdnCommonConfig.h"

namespace Velquin::Pstn {

/// A group of spans with facility-associated signalling: each span carries its own D-channel.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnFasConfig : public IsdnCommonConfig {
    PSTN_CONFIG_CLASS( IsdnFasConfig );

public:
    /// The spans, in the order in which they were added. The group shares them with their boards.
    const std::vector<TSHandle<DigitalInterfaceConfig>>& getApplyToDigitalInterfaces() const noexcept {
        return m_vecApplyToDigitalInterfaces;
    }
    /// Refuses a span without D-channel.
    bool addApplyToDigitalInterface( TSHandle<DigitalInterfaceConfig> in_hDigitalInterface );
    /// Adds the spans one after the other, up to the first that is refused.
    bool
    addApplyToDigitalInterfaceVector( const std::vector<TSHandle<DigitalInterfaceConfig>>& in_vecDigitalInterfaces );

    /// Whether one of the spans has that long unique identifier.
    bool isAppliedToInterface( const char* in_szUniqueId ) const;

private:
    std::vector<TSHandle<DigitalInterfaceConfig>> m_vecApplyToDigitalInterfaces;
};

} // namespace Velquin::Pstn

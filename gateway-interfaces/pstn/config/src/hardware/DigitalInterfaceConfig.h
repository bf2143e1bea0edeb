#pragma once

#include <velquin/TSHandle.h>

#include "../physical/DigitalInterfacePhysicalConfig.h"
#include "InterfaceConfig.h"

namespace Velquin::Pstn {

/// An E1 or T1 span.
class VELQUIN_PSTN_CONFIG_EXPORT DigitalInterfaceConfig : public InterfaceConfig {
    PSTN_CONFIG_CLASS( DigitalInterfaceConfig );

public:
    /// How the span is driven; null until a physical configuration is applied.
    const TSHandle<DigitalInterfacePhysicalConfig>& getPhysicalConfig() const noexcept { return m_hPhysicalConfig; }
    /// Refuses null, with an assertion.
    bool setPhysicalConfig( TSHandle<DigitalInterfacePhysicalConfig> in_hPhysicalConfig );

    /// Whether the span has a D-channel. False, after a WARNING line, when it has no physical configuration.
    bool hasDChannel() const;

    const char* getUniqueId( bool in_bShort ) const override { return composeUniqueId( in_bShort, "di" ); }

private:
    TSHandle<DigitalInterfacePhysicalConfig> m_hPhysicalConfig;
};

} // namespace Velquin::Pstn

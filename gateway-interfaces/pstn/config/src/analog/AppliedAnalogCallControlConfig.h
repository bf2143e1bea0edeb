#pragma once

#include <vector>

#include <velquin/TSHandle.h>

#include "../hardware/AnalogInterfaceConfig.h"
#include "AnalogCallControlCommonConfig.h"

namespace Velquin::Pstn {

/// A configuration with the analog interfaces that it applies to: what FXO and FXS configurations have in common.
class VELQUIN_PSTN_CONFIG_EXPORT AppliedAnalogCallControlConfig : public AnalogCallControlCommonConfig {
    PSTN_CONFIG_CLASS( AppliedAnalogCallControlConfig );

public:
    using Interfaces = std::vector<TSHandle<AnalogInterfaceConfig>>;

    /// The interfaces that the configuration applies to, in the order in which they were added. The configuration
    /// shares them with their boards.
    const Interfaces& getApplyToAnalogInterfaces() const noexcept { return m_vecInterfaces; }
    /// Refuses null, with an assertion. Doesn't check whether the interface is already there.
    bool addApplyToAnalogInterface( TSHandle<AnalogInterfaceConfig> in_hAnalogInterface );
    /// Adds the interfaces one after the other, up to the first that is refused. Those before it stay.
    bool addApplyToAnalogInterfaceVector( const Interfaces& in_vecAnalogInterfaces );
    /// Whether the configuration applies to the interface of that long unique identifier. Null is an assertion.
    bool isAppliedToInterface( const char* in_szInterfaceuniqueId ) const;

protected:
    /// @param in_szKind "Fxo" or "Fxs", as in the log
    /// @param in_getLogger the logger of the derived class
    AppliedAnalogCallControlConfig( const char* in_szKind, const Logger& ( *in_getLogger )() ) noexcept
        : m_szKind( in_szKind ), m_getLogger( in_getLogger ) {}

private:
    const char* m_szKind;
    const Logger& ( *m_getLogger )();
    Interfaces m_vecInterfaces;
};

} // namespace Velquin::Pstn

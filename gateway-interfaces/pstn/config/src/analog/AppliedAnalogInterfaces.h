#pragma once

#include <vector>

#include <velquin/TSHandle.h>

#include "hardware/AnalogInterfaceConfig.h"

namespace Velquin::Pstn {

/// The analog interfaces that one FXO or FXS configuration applies to, in the order in which they were added. The two
/// kinds differ in their word and in the logger; nothing may throw out of their operations, out of these it may.
class AppliedAnalogInterfaces {
public:
    using Interfaces = std::vector<TSHandle<AnalogInterfaceConfig>>;

    /// @param in_szKind "Fxo" or "Fxs"
    /// @param in_uConfigId the configuration's own number
    bool add( TSHandle<AnalogInterfaceConfig> in_hAnalogInterface, const char* in_szKind, unsigned int in_uConfigId,
              const Logger& in_logger );
    /// Adds one after the other; the first that is refused ends it, those before it stay.
    bool addAll( const Interfaces& in_vecAnalogInterfaces, const char* in_szKind, unsigned int in_uConfigId,
                 const Logger& in_logger );

    /// Whether one of them has that unique identifier, in its long form.
    bool contains( const char* in_szInterfaceuniqueId ) const;

    const Interfaces& get() const noexcept { return m_vecInterfaces; }

private:
    Interfaces m_vecInterfaces;
};

} // namespace Velquin::Pstn

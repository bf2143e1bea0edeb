#pragma once

#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"
#include "../callcontrol/NumberedConfigs.h"
#include "AnalogFxoConfig.h"
#include "AnalogFxsConfig.h"

namespace Velquin::Pstn {

/// How calls run on the analog lines: owns the FXO and FXS configurations. A copy shares them. Adders take ownership of
/// their argument, even when they refuse it.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogCallControlConfig : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogCallControlConfig );

public:
    using FxoConfigs = NumberedConfigs<AnalogFxoConfig>;
    using FxsConfigs = NumberedConfigs<AnalogFxsConfig>;

    // Refuse a configuration whose number is taken among its kind, with an ERROR line. Refuse null, with an assertion.
    bool addFXOConfig( AnalogFxoConfig* in_pNewFxoConfig );
    bool addFXSConfig( AnalogFxsConfig* in_pNewFxsConfig );

    /// The configurations, ascending by number.
    const FxoConfigs& getFxoConfigs() const noexcept { return m_mapFxoConfigs; }
    const FxsConfigs& getFxsConfigs() const noexcept { return m_mapFxsConfigs; }

    /// Whether an FXO or FXS configuration applies to the interface of that long unique identifier. Asks one
    /// configuration after the other: for many interfaces, go through the interfaces of each configuration instead.
    bool hasAnalogCallControlConfig( const char* in_szInterfaceUniqueId ) const;

private:
    FxoConfigs m_mapFxoConfigs;
    FxsConfigs m_mapFxsConfigs;
};

} // namespace Velquin::Pstn

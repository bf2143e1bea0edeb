#pragma once

#include <vector>

#include <velquin/LimitedObjPtr.h>

#include "Country.h"
#include "InterfacePhysicalConfig.h"

namespace Velquin::Pstn {

class AnalogInterfaceConfig;

/// How analog ports are driven.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogInterfacePhysicalConfig : public InterfacePhysicalConfig {
    PSTN_CONFIG_CLASS( AnalogInterfacePhysicalConfig );

public:
    /// References only: each of these interfaces holds a handle of this object, and the boards own the interfaces.
    using Interfaces = std::vector<LimitedObjPtr<AnalogInterfaceConfig>>;

    /// The country whose line settings are followed; Country::INVALID until set.
    Country::Type getVariantType() const noexcept { return m_eVariantType; }
    void setVariantType( Country::Type in_eVariantType ) noexcept { m_eVariantType = in_eVariantType; }

    /// The interfaces that this configuration was applied to, in that order. They must outlive their use here.
    const Interfaces& getApplyToAnalogInterfaces() const noexcept { return m_vecApplyToInterfaces; }
    /// Refuses null, with an assertion.
    bool addApplyToAnalogInterface( LimitedObjPtr<AnalogInterfaceConfig> in_pAnalogInterface );

private:
    Country::Type m_eVariantType = Country::INVALID;
    Interfaces m_vecApplyToInterfaces;
};

} // namespace Velquin::Pstn

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
    /// These references own nothing: the boards own the interfaces, and each interface holds a handle of this object.
    using Interfaces = std::vector<LimitedObjPtr<AnalogInterfaceConfig>>;

    /// The country whose line settings the ports follow; Country::INVALID until set.
    Country::Type getVariantType() const noexcept { return m_eVariantType; }
    void setVariantType( Country::Type in_eVariantType ) noexcept { m_eVariantType = in_eVariantType; }

    /// The interfaces that this configuration was applied to, in that order. They must live as long as they are used
    /// here.
    const Interfaces& getApplyToAnalogInterfaces() const noexcept { return m_vecApplyToInterfaces; }
    /// Refuses null, with an assertion.
    bool addApplyToAnalogInterface( LimitedObjPtr<AnalogInterfaceConfig> in_pAnalogInterface );

private:
    Country::Type m_eVariantType = Country::INVALID;
    Interfaces m_vecApplyToInterfaces;
};

} // namespace Velquin::Pstn

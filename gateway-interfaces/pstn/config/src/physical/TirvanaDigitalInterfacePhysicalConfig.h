#pragma once

#include "DigitalInterfacePhysicalConfig.h"

namespace Velquin::Pstn {

/// How spans of Tirvana digital cards are driven.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalInterfacePhysicalConfig : public DigitalInterfacePhysicalConfig {
    PSTN_CONFIG_CLASS( TirvanaDigitalInterfacePhysicalConfig );
};

} // namespace Velquin::Pstn

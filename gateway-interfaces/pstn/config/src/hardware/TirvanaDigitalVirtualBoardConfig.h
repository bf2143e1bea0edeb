#pragma once

#include "DigitalBoardConfig.h"

namespace Velquin::Pstn {

/// A board without hardware, whose interfaces are virtual spans linked to each other.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalVirtualBoardConfig : public DigitalBoardConfig {
    PSTN_CONFIG_CLASS( TirvanaDigitalVirtualBoardConfig );
};

} // namespace Velquin::Pstn

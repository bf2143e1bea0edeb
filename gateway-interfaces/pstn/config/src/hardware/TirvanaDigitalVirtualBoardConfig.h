#pragma once

#include "DigitalBoardConfig.h"

namespace Velquin::Pstn {

/// A board without hardware. Its interfaces are virtual spans, linked with spans of other virtual boards.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalVirtualBoardConfig : public DigitalBoardConfig {
    PSTN_CONFIG_CLASS( TirvanaDigitalVirtualBoardConfig );
};

} // namespace Velquin::Pstn

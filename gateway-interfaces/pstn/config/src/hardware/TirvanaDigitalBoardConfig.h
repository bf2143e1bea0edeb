#pragma once

#include "DigitalBoardConfig.h"
#include "TirvanaDigitalInterfaceConfig.h"

namespace Velquin::Pstn {

/// A digital card of the Tirvana provider.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalBoardConfig : public DigitalBoardConfig {
    PSTN_CONFIG_CLASS( TirvanaDigitalBoardConfig );

public:
    /// The interface from which the board takes its clock; null when the configuration names none.
    TSHandle<TirvanaDigitalInterfaceConfig> getPrimaryClockReferenceInterfaceConfig() const;
};

} // namespace Velquin::Pstn

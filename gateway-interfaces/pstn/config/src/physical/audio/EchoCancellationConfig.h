#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Cancellation of the echo that a line returns (ITU-T G.168). Base of what performs it.
class VELQUIN_PSTN_CONFIG_EXPORT EchoCancellationConfig : public virtual Object {
    PSTN_CONFIG_CLASS( EchoCancellationConfig );

protected:
    EchoCancellationConfig() = default;
};

} // namespace Velquin::Pstn

#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Cancellation of the echo that a line returns (ITU-T G.168). Abstract base class.
class VELQUIN_PSTN_CONFIG_EXPORT EchoCancellationConfig : public virtual Object {
    PSTN_CONFIG_CLASS( EchoCancellationConfig );

public:
    ~EchoCancellationConfig() override = 0;

protected:
    EchoCancellationConfig() = default;
    EchoCancellationConfig( const EchoCancellationConfig& ) = default;
    EchoCancellationConfig& operator=( const EchoCancellationConfig& ) = default;
};

} // namespace Velquin::Pstn

#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Cancellation of the echo between a telephone's loudspeaker and microphone (ITU-T G.167). Abstract base class.
class VELQUIN_PSTN_CONFIG_EXPORT AcousticEchoCancellationConfig : public virtual Object {
    PSTN_CONFIG_CLASS( AcousticEchoCancellationConfig );

public:
    ~AcousticEchoCancellationConfig() override = 0;

protected:
    AcousticEchoCancellationConfig() = default;
    AcousticEchoCancellationConfig( const AcousticEchoCancellationConfig& ) = default;
    AcousticEchoCancellationConfig& operator=( const AcousticEchoCancellationConfig& ) = default;
};

} // namespace Velquin::Pstn

#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Attenuation of background noise. Base of what performs it.
class VELQUIN_PSTN_CONFIG_EXPORT BackgroundNoiseAttenuationConfig : public virtual Object {
    PSTN_CONFIG_CLASS( BackgroundNoiseAttenuationConfig );

protected:
    BackgroundNoiseAttenuationConfig() = default;
};

} // namespace Velquin::Pstn

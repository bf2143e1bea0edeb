#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Attenuation of background noise. Abstract base class.
class VELQUIN_PSTN_CONFIG_EXPORT BackgroundNoiseAttenuationConfig : public virtual Object {
    PSTN_CONFIG_CLASS( BackgroundNoiseAttenuationConfig );

public:
    ~BackgroundNoiseAttenuationConfig() override = 0;

protected:
    BackgroundNoiseAttenuationConfig() = default;
    BackgroundNoiseAttenuationConfig( const BackgroundNoiseAttenuationConfig& ) = default;
    BackgroundNoiseAttenuationConfig& operator=( const BackgroundNoiseAttenuationConfig& ) = default;
};

} // namespace Velquin::Pstn

#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Control of the voice level. Base of what performs it.
class VELQUIN_PSTN_CONFIG_EXPORT LevelControlConfig : public virtual Object {
    PSTN_CONFIG_CLASS( LevelControlConfig );

protected:
    LevelControlConfig() = default;
};

} // namespace Velquin::Pstn

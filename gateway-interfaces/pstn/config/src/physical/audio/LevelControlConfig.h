#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Control of the voice level. Abstract base class.
class VELQUIN_PSTN_CONFIG_EXPORT LevelControlConfig : public virtual Object {
    PSTN_CONFIG_CLASS( LevelControlConfig );

public:
    ~LevelControlConfig() override = 0;

protected:
    LevelControlConfig() = default;
    LevelControlConfig( const LevelControlConfig& ) = default;
    LevelControlConfig& operator=( const LevelControlConfig& ) = default;
};

} // namespace Velquin::Pstn

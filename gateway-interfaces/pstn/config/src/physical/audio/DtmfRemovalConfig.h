#pragma once

#include <velquin/Object.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Removal of DTMF tones (ITU-T Q.23) from the voice. Abstract base class.
class VELQUIN_PSTN_CONFIG_EXPORT DtmfRemovalConfig : public virtual Object {
    PSTN_CONFIG_CLASS( DtmfRemovalConfig );

public:
    ~DtmfRemovalConfig() override = 0;

protected:
    DtmfRemovalConfig() = default;
    DtmfRemovalConfig( const DtmfRemovalConfig& ) = default;
    DtmfRemovalConfig& operator=( const DtmfRemovalConfig& ) = default;
};

} // namespace Velquin::Pstn

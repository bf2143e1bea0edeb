#pragma once

#include "DtmfRemovalConfig.h"
#include "VoiceProcessingConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Base of the readers of a `DTMFRemoval` element.
class VELQUIN_PSTN_CONFIG_EXPORT DtmfRemovalConfigXmlSerializer
    : public VoiceProcessingConfigXmlSerializer<DtmfRemovalConfigXmlSerializer, DtmfRemovalConfig> {
    PSTN_CONFIG_CLASS( DtmfRemovalConfigXmlSerializer );
};

} // namespace Velquin::Pstn

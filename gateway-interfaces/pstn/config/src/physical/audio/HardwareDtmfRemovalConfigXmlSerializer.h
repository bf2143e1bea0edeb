#pragma once

#include "DtmfRemovalConfigXmlSerializer.h"
#include "HardwareDtmfRemovalConfig.h"

namespace Velquin::Pstn {

/// Reads a `DTMFRemoval` element of type HARDWARE.
class VELQUIN_PSTN_CONFIG_EXPORT HardwareDtmfRemovalConfigXmlSerializer
    : public HardwareVoiceProcessingConfigXmlSerializer<HardwareDtmfRemovalConfigXmlSerializer,
                                                        DtmfRemovalConfigXmlSerializer, HardwareDtmfRemovalConfig> {
    PSTN_CONFIG_CLASS( HardwareDtmfRemovalConfigXmlSerializer );

public:
    /// Reads the element's own attributes into the new object; false after an ERROR line.
    static bool readAttributes( xmlNode* in_pElement, HardwareDtmfRemovalConfig& out_config );
};

} // namespace Velquin::Pstn

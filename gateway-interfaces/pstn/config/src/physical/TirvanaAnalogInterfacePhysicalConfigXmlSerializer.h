#pragma once

#include "AnalogInterfacePhysicalConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads a `tirvanaAnalogConfig` element.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaAnalogInterfacePhysicalConfigXmlSerializer
    : public AnalogInterfacePhysicalConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaAnalogInterfacePhysicalConfigXmlSerializer );

public:
    bool write( xmlNode* const in_pParent, const InterfacePhysicalConfig& in_config ) override;
    InterfacePhysicalConfig* newInterfacePhysicalConfig() override;
    AudioConfigXmlSerializer* newAudioConfigXmlSerializer() override;

protected:
    bool readAnalog( xmlNode* in_pAnalog, AnalogInterfacePhysicalConfig& out_config ) override;
};

} // namespace Velquin::Pstn

#pragma once

#include "DigitalInterfacePhysicalConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads a `tirvanaDigitalConfig` element.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalInterfacePhysicalConfigXmlSerializer
    : public DigitalInterfacePhysicalConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaDigitalInterfacePhysicalConfigXmlSerializer );

public:
    TSHandle<InterfacePhysicalConfig> read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
    bool write( xmlNode* const in_pParent, const InterfacePhysicalConfig& in_config ) override;
    InterfacePhysicalConfig* newInterfacePhysicalConfig() override;
    AudioConfigXmlSerializer* newAudioConfigXmlSerializer() override;
};

} // namespace Velquin::Pstn

#pragma once

#include "InterfacePhysicalConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads what all digital physical configurations have in common, and applies the configuration to the interfaces.
class VELQUIN_PSTN_CONFIG_EXPORT DigitalInterfacePhysicalConfigXmlSerializer
    : public InterfacePhysicalConfigXmlSerializer {
    PSTN_CONFIG_CLASS( DigitalInterfacePhysicalConfigXmlSerializer );

public:
    TSHandle<InterfacePhysicalConfig> read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
    bool write( xmlNode* const in_pParent, const InterfacePhysicalConfig& in_config ) override;
    InterfacePhysicalConfig* newInterfacePhysicalConfig() override;
};

} // namespace Velquin::Pstn

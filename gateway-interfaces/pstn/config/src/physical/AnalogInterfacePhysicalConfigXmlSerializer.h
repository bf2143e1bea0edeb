#pragma once

#include "AnalogInterfacePhysicalConfig.h"
#include "InterfacePhysicalConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads what all analog physical configurations have in common, and applies the configuration to the interfaces.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogInterfacePhysicalConfigXmlSerializer
    : public InterfacePhysicalConfigXmlSerializer {
    PSTN_CONFIG_CLASS( AnalogInterfacePhysicalConfigXmlSerializer );

public:
    TSHandle<InterfacePhysicalConfig> read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
    bool write( xmlNode* const in_pParent, const InterfacePhysicalConfig& in_config ) override;
    InterfacePhysicalConfig* newInterfacePhysicalConfig() override;

protected:
    /// Reads the attributes of the `analog` element; false after an ERROR line.
    virtual bool readAnalog( xmlNode* in_pAnalog, AnalogInterfacePhysicalConfig& out_config );
};

} // namespace Velquin::Pstn

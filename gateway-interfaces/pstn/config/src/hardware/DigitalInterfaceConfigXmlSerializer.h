#pragma once

#include "InterfaceConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads what all digital interfaces have in common: no more than what all interfaces have.
class VELQUIN_PSTN_CONFIG_EXPORT DigitalInterfaceConfigXmlSerializer : public InterfaceConfigXmlSerializer {
    PSTN_CONFIG_CLASS( DigitalInterfaceConfigXmlSerializer );

public:
    /// The result is a digital interface.
    InterfaceConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                           const BoardConfig& in_boardConfig ) override;
};

} // namespace Velquin::Pstn

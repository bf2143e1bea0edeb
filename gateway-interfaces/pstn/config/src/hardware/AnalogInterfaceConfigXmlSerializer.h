#pragma once

#include "InterfaceConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads and writes what all analog interfaces have in common.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogInterfaceConfigXmlSerializer : public InterfaceConfigXmlSerializer {
    PSTN_CONFIG_CLASS( AnalogInterfaceConfigXmlSerializer );

public:
    /// The result is an analog interface. Phone number and caller name are read for FXS only.
    InterfaceConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                           const BoardConfig& in_boardConfig ) override;
    bool write( xmlNode* const in_pElement, const InterfaceConfig& in_interfaceConfig ) override;
};

} // namespace Velquin::Pstn

#pragma once

#include "AnalogInterfaceConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads and writes an `interface` element of a `tirvanaAnalogBoard`.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaAnalogInterfaceConfigXmlSerializer : public AnalogInterfaceConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaAnalogInterfaceConfigXmlSerializer );

public:
    InterfaceConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                           const BoardConfig& in_boardConfig ) override;
    /// Writes the interface as a new child of the board's element.
    bool write( xmlNode* const in_pBoardElement, const InterfaceConfig& in_interfaceConfig ) override;
    InterfaceConfig* newInterfaceConfig() override;
};

} // namespace Velquin::Pstn

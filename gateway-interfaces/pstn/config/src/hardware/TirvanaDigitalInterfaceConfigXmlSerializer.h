#pragma once

#include "DigitalInterfaceConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads and writes an `interface` element of a `tirvanaDigitalBoard`.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalInterfaceConfigXmlSerializer
    : public DigitalInterfaceConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaDigitalInterfaceConfigXmlSerializer );

public:
    InterfaceConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                           const BoardConfig& in_boardConfig ) override;
    /// Writes the interface as a new child of the board's element.
    bool write( xmlNode* const in_pBoardElement, const InterfaceConfig& in_interfaceConfig ) override;
    InterfaceConfig* newInterfaceConfig() override;
};

} // namespace Velquin::Pstn

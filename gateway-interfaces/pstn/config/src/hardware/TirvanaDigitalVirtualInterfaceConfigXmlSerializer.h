#pragma once

#include "DigitalInterfaceConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads an `interface` element of a `tirvanaVirtualDigitalBoard`.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalVirtualInterfaceConfigXmlSerializer
    : public DigitalInterfaceConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaDigitalVirtualInterfaceConfigXmlSerializer );

public:
    InterfaceConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                           const BoardConfig& in_boardConfig ) override;
    /// Not implemented: false, with an ERROR line.
    bool write( xmlNode* const in_pBoardElement, const InterfaceConfig& in_interfaceConfig ) override;
    InterfaceConfig* newInterfaceConfig() override;
};

} // namespace Velquin::Pstn

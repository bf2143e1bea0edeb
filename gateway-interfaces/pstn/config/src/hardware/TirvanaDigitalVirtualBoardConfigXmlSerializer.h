#pragma once

#include "DigitalBoardConfigXmlSerializer.h"
#include "TirvanaDigitalVirtualInterfaceConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads a `tirvanaVirtualDigitalBoard` element with its interfaces.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalVirtualBoardConfigXmlSerializer
    : public DigitalBoardConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaDigitalVirtualBoardConfigXmlSerializer );

public:
    BoardConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
    /// Not implemented: false, with an ERROR line.
    bool write( xmlNode* const in_pParent, const BoardConfig& in_boardConfig ) override;
    BoardConfig* newBoardConfig() override;

private:
    TirvanaDigitalVirtualInterfaceConfigXmlSerializer m_interfaceXmlSerializer;
};

} // namespace Velquin::Pstn

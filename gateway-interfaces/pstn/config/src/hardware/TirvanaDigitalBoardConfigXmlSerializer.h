#pragma once

#include "DigitalBoardConfigXmlSerializer.h"
#include "TirvanaDigitalInterfaceConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads and writes a `tirvanaDigitalBoard` element with its interfaces.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalBoardConfigXmlSerializer : public DigitalBoardConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaDigitalBoardConfigXmlSerializer );

public:
    BoardConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
    /// Writes the board as a new child of the parent element, without its primary clock reference.
    bool write( xmlNode* const in_pParent, const BoardConfig& in_boardConfig ) override;
    BoardConfig* newBoardConfig() override;

private:
    TirvanaDigitalInterfaceConfigXmlSerializer m_interfaceXmlSerializer;
};

} // namespace Velquin::Pstn

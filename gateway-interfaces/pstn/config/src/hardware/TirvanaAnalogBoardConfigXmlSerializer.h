#pragma once

#include "AnalogBoardConfigXmlSerializer.h"
#include "TirvanaAnalogInterfaceConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads and writes a `tirvanaAnalogBoard` element with its interfaces.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaAnalogBoardConfigXmlSerializer : public AnalogBoardConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaAnalogBoardConfigXmlSerializer );

public:
    BoardConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
    /// Writes the board as a new child of the parent element.
    bool write( xmlNode* const in_pParent, const BoardConfig& in_boardConfig ) override;
    BoardConfig* newBoardConfig() override;

private:
    TirvanaAnalogInterfaceConfigXmlSerializer m_interfaceXmlSerializer;
};

} // namespace Velquin::Pstn

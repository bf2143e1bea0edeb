#pragma once

#include "BoardConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads what all analog boards have in common.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogBoardConfigXmlSerializer : public BoardConfigXmlSerializer {
    PSTN_CONFIG_CLASS( AnalogBoardConfigXmlSerializer );

public:
    /// The result is an analog board.
    BoardConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
};

} // namespace Velquin::Pstn

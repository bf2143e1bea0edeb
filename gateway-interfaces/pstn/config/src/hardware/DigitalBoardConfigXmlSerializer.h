#pragma once

#include "BoardConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads what all digital boards have in common.
class VELQUIN_PSTN_CONFIG_EXPORT DigitalBoardConfigXmlSerializer : public BoardConfigXmlSerializer {
    PSTN_CONFIG_CLASS( DigitalBoardConfigXmlSerializer );

public:
    /// The result is a digital board.
    BoardConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
};

} // namespace Velquin::Pstn

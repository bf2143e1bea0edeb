#pragma once

#include <velquin/Object.h>

#include "../reading/XmlNodeFwd.h"
#include "BoardConfig.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Reads and writes what all boards have in common. Base of the board serializers.
class VELQUIN_PSTN_CONFIG_EXPORT BoardConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( BoardConfigXmlSerializer );

public:
    /// A new board, which the caller owns; null after an ERROR line.
    virtual BoardConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Writes the common attributes into the board's own element. The concrete serializers take the parent element
    /// instead, and make the board's element in it.
    virtual bool write( xmlNode* const in_pElement, const BoardConfig& in_boardConfig );
    /// Creates the empty object of the concrete class, which the caller owns; null in this class.
    virtual BoardConfig* newBoardConfig();
};

} // namespace Velquin::Pstn

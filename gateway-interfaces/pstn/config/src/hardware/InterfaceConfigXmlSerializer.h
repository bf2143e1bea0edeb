#pragma once

#include <velquin/Object.h>

#include "../reading/XmlNodeFwd.h"
#include "InterfaceConfig.h"

namespace Velquin::Pstn {

class BoardConfig;
class XmlConfig;

/// Reads and writes what all interfaces have in common. Base of the interface serializers.
class VELQUIN_PSTN_CONFIG_EXPORT InterfaceConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( InterfaceConfigXmlSerializer );

public:
    /// A new interface, which refers back to the board. The caller owns it. Null after an ERROR line.
    virtual InterfaceConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                                   const BoardConfig& in_boardConfig );
    /// Writes the common attributes into the interface's own element. The concrete serializers take the board's element
    /// instead, and make the interface's element in it.
    virtual bool write( xmlNode* const in_pElement, const InterfaceConfig& in_interfaceConfig );
    /// Creates the empty object of the concrete class, which the caller owns; null in this class.
    virtual InterfaceConfig* newInterfaceConfig();

protected:
    /// A new `interface` element in the board's element; null, after an ERROR line, when libxml2 can't make it.
    static xmlNode* addInterfaceElement( xmlNode* in_pBoardElement, const Logger& in_logger );
};

} // namespace Velquin::Pstn

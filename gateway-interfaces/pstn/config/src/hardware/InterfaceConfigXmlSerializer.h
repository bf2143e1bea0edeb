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
    /// A new interface, which the caller owns and which refers back to the board; null after an ERROR line.
    virtual InterfaceConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                                   const BoardConfig& in_boardConfig );
    /// Writes the common attributes into the interface's own element. The concrete serializers are given the board's
    /// element and make the interface's element under it.
    virtual bool write( xmlNode* const in_pElement, const InterfaceConfig& in_interfaceConfig );
    /// Creates the empty object of the concrete class, which the caller owns; null in this class.
    virtual InterfaceConfig* newInterfaceConfig();

protected:
    /// A new `interface` element under the board's; null, with an ERROR line, when libxml2 can't make it.
    static xmlNode* addInterfaceElement( xmlNode* in_pBoardElement, const Logger& in_logger );
};

} // namespace Velquin::Pstn

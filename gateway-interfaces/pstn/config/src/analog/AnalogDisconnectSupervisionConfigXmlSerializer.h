#pragma once

#include <velquin/Object.h>

#include "../reading/XmlNodeFwd.h"
#include "AnalogDisconnectSupervisionConfig.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Reads a `disconnectSupervision` element.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogDisconnectSupervisionConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogDisconnectSupervisionConfigXmlSerializer );

public:
    /// A new configuration, which the caller owns; null after an ERROR line. Drops a detector whose name is taken, with
    /// an ERROR line, and goes on.
    virtual AnalogDisconnectSupervisionConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an assertion.
    virtual bool write( xmlNode* const in_pParent, const AnalogDisconnectSupervisionConfig& in_config );
};

} // namespace Velquin::Pstn

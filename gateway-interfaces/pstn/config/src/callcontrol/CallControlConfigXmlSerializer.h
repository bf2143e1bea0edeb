#pragma once

#include <velquin/TSHandle.h>

#include "../reading/XmlNodeFwd.h"
#include "CallControlConfig.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Reads the `callControl` element: first the channel groups, then ISDN and analog call control, which name the groups.
class VELQUIN_PSTN_CONFIG_EXPORT CallControlConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( CallControlConfigXmlSerializer );

public:
    /// A new call control; null after an ERROR line.
    virtual TSHandle<CallControlConfig> read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const CallControlConfig& in_config );
};

} // namespace Velquin::Pstn

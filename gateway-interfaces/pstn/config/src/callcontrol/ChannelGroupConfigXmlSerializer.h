#pragma once

#include <velquin/Object.h>

#include "../reading/XmlNodeFwd.h"
#include "ChannelGroupConfig.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Reads a channel group without its ranges: the ISDN and analog sections add them.
class VELQUIN_PSTN_CONFIG_EXPORT ChannelGroupConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( ChannelGroupConfigXmlSerializer );

public:
    /// A new group, which the caller owns; null after an ERROR line.
    virtual ChannelGroupConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const ChannelGroupConfig& in_config );
};

} // namespace Velquin::Pstn

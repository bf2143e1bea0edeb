#pragma once

#include <velquin/Object.h>

#include "../reading/XmlNodeFwd.h"
#include "DChannelConfig.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Reads a `DChannelT1` or `DChannelE1` element.
class VELQUIN_PSTN_CONFIG_EXPORT DChannelConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( DChannelConfigXmlSerializer );

public:
    /// A new D-channel, which the caller owns; null after an ERROR line. If the element names no folder, captures go to
    /// the folder "logs/DChannelPcapFiles/" of the gateway's installation ("marovane.Installation.Directory").
    virtual DChannelConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const DChannelConfig& in_config );
    /// Creates the empty object, which the caller owns.
    virtual DChannelConfig* newDChannelConfig();
};

} // namespace Velquin::Pstn

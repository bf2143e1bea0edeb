#pragma once

#include <velquin/Object.h>

#include "../reading/XmlNodeFwd.h"
#include "TirvanaThreadGroupConfig.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Reads a `BChannelsThreads` or `DChannelsThreads` element of a provider.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaThreadGroupConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( TirvanaThreadGroupConfigXmlSerializer );

public:
    /// A new thread group, which the caller owns; null after an ERROR line.
    virtual TirvanaThreadGroupConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const TirvanaThreadGroupConfig& in_config );
};

} // namespace Velquin::Pstn

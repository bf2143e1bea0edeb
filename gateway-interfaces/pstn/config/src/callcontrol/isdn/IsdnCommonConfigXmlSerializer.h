#pragma once

#include <velquin/TSHandle.h>

#include "../../reading/XmlNodeFwd.h"
#include "IsdnCommonConfig.h"

namespace Velquin::Pstn {

class CallControlConfig;
class XmlConfig;

/// Reads what FAS and NFAS groups have in common. Base of their serializers.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnCommonConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( IsdnCommonConfigXmlSerializer );

public:
    /// A new group, which the caller owns; null after an ERROR line.
    /// @param in_hCallControlConfig the root, with its channel groups
    virtual IsdnCommonConfig* read( TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* const in_pElement,
                                    XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const IsdnCommonConfig& in_config );
    /// Creates the empty object of the concrete class, which the caller owns; null in this class.
    virtual IsdnCommonConfig* newIsdnCommonConfig();
};

} // namespace Velquin::Pstn

#pragma once

#include <velquin/TSHandle.h>

#include "../../reading/XmlNodeFwd.h"
#include "IsdnNfasGroupMemberConfig.h"

namespace Velquin::Pstn {

class CallControlConfig;
class IsdnNfasConfig;
class XmlConfig;

/// Reads a member of an NFAS group and adds its B-channel ranges to channel groups.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnNfasGroupMemberConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( IsdnNfasGroupMemberConfigXmlSerializer );

public:
    /// A new member, which the caller adds to the group; null after an ERROR line.
    /// @param in_pNfasConfig the group, to which the ranges refer; the caller keeps it
    virtual TSHandle<IsdnNfasGroupMemberConfig> read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                      IsdnNfasConfig* in_pNfasConfig, xmlNode* const in_pElement,
                                                      XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const IsdnNfasGroupMemberConfig& in_config );
};

} // namespace Velquin::Pstn

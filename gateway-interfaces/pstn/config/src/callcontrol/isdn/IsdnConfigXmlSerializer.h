#pragma once

#include <velquin/TSHandle.h>

#include "../../reading/XmlNodeFwd.h"
#include "IsdnConfig.h"

namespace Velquin::Pstn {

class CallControlConfig;
class XmlConfig;

/// Reads the `isdn` element: first the NFAS groups, then the FAS groups, in whatever order they stand in the document.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( IsdnConfigXmlSerializer );

public:
    /// A new ISDN call control, which the caller owns; null after an ERROR line.
    /// @param in_hCallControlConfig the root, with its channel groups
    virtual IsdnConfig* read( TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* const in_pElement,
                              XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const IsdnConfig& in_config );
};

} // namespace Velquin::Pstn

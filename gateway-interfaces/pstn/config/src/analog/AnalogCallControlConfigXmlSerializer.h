#pragma once

#include <velquin/Object.h>
#include <velquin/TSHandle.h>

#include "../reading/XmlNodeFwd.h"
#include "AnalogCallControlConfig.h"

namespace Velquin::Pstn {

class CallControlConfig;
class XmlConfig;

/// Reads the `analog` element in `callControl`.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogCallControlConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogCallControlConfigXmlSerializer );

public:
    /// A new configuration, which the caller owns; null after an ERROR line. Reads only the first of several
    /// `analogFxsConfig` elements.
    /// @param in_hCallControlConfig the root; channels are added to its channel groups. After a fault, give up the
    /// whole call control: the channels stay there and refer to configurations that are gone
    virtual AnalogCallControlConfig* read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                           xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an assertion.
    virtual bool write( xmlNode* const in_pParent, const AnalogCallControlConfig& in_config );
};

} // namespace Velquin::Pstn

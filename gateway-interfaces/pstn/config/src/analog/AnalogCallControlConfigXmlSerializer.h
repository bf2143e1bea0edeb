#pragma once

#include <velquin/Object.h>
#include <velquin/TSHandle.h>

#include "../reading/XmlNodeFwd.h"
#include "AnalogCallControlConfig.h"

namespace Velquin::Pstn {

class CallControlConfig;
class XmlConfig;

/// Reads the `analog` element under `callControl`.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogCallControlConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogCallControlConfigXmlSerializer );

public:
    /// A new configuration, which the caller owns; null after an ERROR line. Of several `analogFxsConfig` elements only
    /// the first is read.
    /// @param in_hCallControlConfig has the channel groups, to which the interfaces' channels are added; what was added
    /// before a fault stays there and then refers to configurations that are gone, so that the whole call control is to
    /// be given up
    virtual AnalogCallControlConfig* read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                           xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an assertion.
    virtual bool write( xmlNode* const in_pParent, const AnalogCallControlConfig& in_config );
};

} // namespace Velquin::Pstn

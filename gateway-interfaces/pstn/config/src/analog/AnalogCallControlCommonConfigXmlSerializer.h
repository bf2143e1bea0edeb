#pragma once

#include <velquin/Object.h>
#include <velquin/TSHandle.h>

#include "../reading/XmlNodeFwd.h"
#include "AnalogCallControlCommonConfig.h"

namespace Velquin::Pstn {

class CallControlConfig;
class XmlConfig;

/// Reads what FXO and FXS configurations have in common. Base of their serializers.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogCallControlCommonConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogCallControlCommonConfigXmlSerializer );

public:
    /// A new configuration, which the caller owns; null after an ERROR line.
    /// @param in_hCallControlConfig the root, with the channel groups that the interfaces join
    virtual AnalogCallControlCommonConfig* read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                 xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an assertion.
    virtual bool write( xmlNode* const in_pParent, const AnalogCallControlCommonConfig& in_config );
    /// Creates the empty object of the concrete class, which the caller owns; null in this class.
    virtual AnalogCallControlCommonConfig* newAnalogCallControlCommonConfig();
};

} // namespace Velquin::Pstn

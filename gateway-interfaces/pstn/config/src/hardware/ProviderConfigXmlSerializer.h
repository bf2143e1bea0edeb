#pragma once

#include <velquin/Object.h>

#include "../reading/XmlNodeFwd.h"
#include "ProviderConfig.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Reads a provider. Base of the provider serializers.
class VELQUIN_PSTN_CONFIG_EXPORT ProviderConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( ProviderConfigXmlSerializer );

public:
    /// A new provider, which the caller owns; null after an ERROR line.
    virtual ProviderConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const ProviderConfig& in_config );
};

} // namespace Velquin::Pstn

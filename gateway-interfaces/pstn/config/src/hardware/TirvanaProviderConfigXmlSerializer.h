#pragma once

#include "ProviderConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads a `tirvana` element in `providers`. The provider is named after the element.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaProviderConfigXmlSerializer : public ProviderConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaProviderConfigXmlSerializer );

public:
    ProviderConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
    bool write( xmlNode* const in_pParent, const ProviderConfig& in_config ) override;
};

} // namespace Velquin::Pstn

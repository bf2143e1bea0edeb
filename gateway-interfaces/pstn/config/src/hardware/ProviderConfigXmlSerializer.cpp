#include "hardware/ProviderConfigXmlSerializer.h"

#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( ProviderConfigXmlSerializer );

ProviderConfig* ProviderConfigXmlSerializer::read( xmlNode* const, XmlConfig& ) {
    // Only the derived serializers know the class of their provider.
    reportNotImplemented( getLogger(), "ProviderConfigXmlSerializer::read" );
    return nullptr;
}

bool ProviderConfigXmlSerializer::write( xmlNode* const, const ProviderConfig& ) {
    return reportNotImplemented( getLogger(), "ProviderConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn

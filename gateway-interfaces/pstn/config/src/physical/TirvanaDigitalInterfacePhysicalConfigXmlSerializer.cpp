#include "physical/TirvanaDigitalInterfacePhysicalConfigXmlSerializer.h"

#include <new>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "physical/TirvanaDigitalInterfacePhysicalConfig.h"
#include "physical/audio/TirvanaAudioConfigXmlSerializer.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalInterfacePhysicalConfigXmlSerializer );

TSHandle<InterfacePhysicalConfig>
TirvanaDigitalInterfacePhysicalConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    auto hInterfacePhysicalConfig = DigitalInterfacePhysicalConfigXmlSerializer::read( in_pElement, in_xmlConfig );
    const auto hTirvanaDigitalInterfacePhysicalConfig =
        dynamicHandleCast<TirvanaDigitalInterfacePhysicalConfig>( hInterfacePhysicalConfig );
    if ( !VELQUIN_ASSERT( !hTirvanaDigitalInterfacePhysicalConfig.isNull() ) )
        return {};
    return hInterfacePhysicalConfig;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool TirvanaDigitalInterfacePhysicalConfigXmlSerializer::write( xmlNode* const, const InterfacePhysicalConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaDigitalInterfacePhysicalConfigXmlSerializer::write" );
}

InterfacePhysicalConfig* TirvanaDigitalInterfacePhysicalConfigXmlSerializer::newInterfacePhysicalConfig() {
    return new ( std::nothrow ) TirvanaDigitalInterfacePhysicalConfig();
}

AudioConfigXmlSerializer* TirvanaDigitalInterfacePhysicalConfigXmlSerializer::newAudioConfigXmlSerializer() {
    return new ( std::nothrow ) TirvanaAudioConfigXmlSerializer();
}

} // namespace Velquin::Pstn

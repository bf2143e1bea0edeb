#include "hardware/DigitalInterfaceConfigXmlSerializer.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/UniqueObjPtr.h>

#include "hardware/DigitalInterfaceConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalInterfaceConfigXmlSerializer );

InterfaceConfig* DigitalInterfaceConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig,
                                                            const BoardConfig& in_boardConfig ) try {
    UniqueObjPtr<InterfaceConfig> pInterfaceConfig(
        InterfaceConfigXmlSerializer::read( in_pElement, in_xmlConfig, in_boardConfig ) );
    if ( pInterfaceConfig.isNull() )
        return nullptr;
    auto pDigitalInterfaceConfig = dynamicOwnerCast<DigitalInterfaceConfig>( std::move( pInterfaceConfig ) );
    if ( !VELQUIN_ASSERT( !pDigitalInterfaceConfig.isNull() ) )
        return nullptr;
    return pDigitalInterfaceConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

} // namespace Velquin::Pstn

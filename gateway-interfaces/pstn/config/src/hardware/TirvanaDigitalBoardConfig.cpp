#include "hardware/TirvanaDigitalBoardConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalBoardConfig );

TSHandle<TirvanaDigitalInterfaceConfig> TirvanaDigitalBoardConfig::getPrimaryClockReferenceInterfaceConfig() const try {
    std::vector<TSHandle<DigitalInterfaceConfig>> vecInterfaces;
    if ( !getDigitalInterfacesConfig( vecInterfaces ) )
        return {};
    for ( const auto& hInterface : vecInterfaces ) {
        auto hTirvanaInterface = dynamicHandleCast<TirvanaDigitalInterfaceConfig>( hInterface );
        if ( !hTirvanaInterface.isNull() && hTirvanaInterface->isPrimaryClockReference() )
            return hTirvanaInterface;
    }
    return {};
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

} // namespace Velquin::Pstn

#include "hardware/DigitalBoardConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalBoardConfig );

bool DigitalBoardConfig::addDigitalInterfaceConfig( DigitalInterfaceConfig* in_pNewDigitalInterfaceConfig ) try {
    TSHandle<DigitalInterfaceConfig> hInterface( in_pNewDigitalInterfaceConfig );
    return VELQUIN_ASSERT( in_pNewDigitalInterfaceConfig ) && m_mapInterfaces.add( hInterface, "digital", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

TSHandle<DigitalInterfaceConfig> DigitalBoardConfig::getDigitalInterfaceConfig( unsigned int in_uId ) const try {
    return m_mapInterfaces.get( in_uId, "digital", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool DigitalBoardConfig::getDigitalInterfacesConfig(
    std::vector<TSHandle<DigitalInterfaceConfig>>& out_vecDigitalInterfaceConfig ) const try {
    if ( !VELQUIN_ASSERT( out_vecDigitalInterfaceConfig.empty() ) )
        return false;
    m_mapInterfaces.getAll( out_vecDigitalInterfaceConfig, "digital", getLogger() );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

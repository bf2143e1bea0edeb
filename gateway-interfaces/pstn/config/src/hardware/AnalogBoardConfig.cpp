#include "hardware/AnalogBoardConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogBoardConfig );

bool AnalogBoardConfig::addAnalogInterfaceConfig( AnalogInterfaceConfig* in_pNewAnalogInterfaceConfig ) try {
    TSHandle<AnalogInterfaceConfig> hInterface( in_pNewAnalogInterfaceConfig );
    return VELQUIN_ASSERT( in_pNewAnalogInterfaceConfig ) && m_mapInterfaces.add( hInterface, "analog", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

TSHandle<AnalogInterfaceConfig> AnalogBoardConfig::getAnalogInterfaceConfig( unsigned int in_uId ) const try {
    return m_mapInterfaces.get( in_uId, "analog", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool AnalogBoardConfig::getAnalogInterfacesConfig(
    std::vector<TSHandle<AnalogInterfaceConfig>>& out_vecAnalogInterfaceConfig ) const try {
    if ( !VELQUIN_ASSERT( out_vecAnalogInterfaceConfig.empty() ) )
        return false;
    m_mapInterfaces.getAll( out_vecAnalogInterfaceConfig, "analog", getLogger() );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

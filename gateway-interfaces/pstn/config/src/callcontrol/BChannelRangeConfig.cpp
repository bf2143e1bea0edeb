#include "callcontrol/BChannelRangeConfig.h"

#include "Setters.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( BChannelRangeConfig );

bool BChannelRangeConfig::setInterfaceConfig( const LimitedObjPtr<const InterfaceConfig>& in_pInterfaceConfig ) {
    return setNotNull( m_pInterfaceConfig, in_pInterfaceConfig, "!in_pInterfaceConfig.isNull()" );
}

bool BChannelRangeConfig::setIsdnCommonConfig( const LimitedObjPtr<const IsdnCommonConfig>& in_pIsdnCommonConfig ) {
    return setNotNull( m_pIsdnCommonConfig, in_pIsdnCommonConfig, "!in_pIsdnCommonConfig.isNull()" );
}

bool BChannelRangeConfig::setFxoConfig( const LimitedObjPtr<const AnalogFxoConfig>& in_pFxoConfig ) {
    return setNotNull( m_pFxoConfig, in_pFxoConfig, "!in_pFxoConfig.isNull()" );
}

bool BChannelRangeConfig::setFxsConfig( const LimitedObjPtr<const AnalogFxsConfig>& in_pFxsConfig ) {
    return setNotNull( m_pFxsConfig, in_pFxsConfig, "!in_pFxsConfig.isNull()" );
}

} // namespace Velquin::Pstn

#include "analog/AnalogFxsConfig.h"

#include "Setters.h"
#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogFxsConfig );
PSTN_CONFIG_NESTED_CLASS_IMPL( AnalogFxsConfig, InboundCallHandlingConfig );
PSTN_CONFIG_NESTED_CLASS_IMPL( AnalogFxsConfig, HotlineDialingConfig );
PSTN_CONFIG_NESTED_CLASS_IMPL( AnalogFxsConfig, DisconnectAnswerNotificationConfig );

bool AnalogFxsConfig::HotlineDialingConfig::setDialingNumber( const char* in_szDialingNumber ) {
    return assignText( m_strDialingNumber, in_szDialingNumber, getLogger() );
}

bool AnalogFxsConfig::setInboundCallHandlingConfig( InboundCallHandlingConfig* in_pInboundCallHandlingConfig ) {
    return setOwned( m_hInboundCallHandlingConfig, in_pInboundCallHandlingConfig, getLogger() );
}

bool AnalogFxsConfig::setHotlineDialingConfig( HotlineDialingConfig* in_pHotlineDialingConfig ) {
    return setOwned( m_hHotlineDialingConfig, in_pHotlineDialingConfig, getLogger() );
}

bool AnalogFxsConfig::setDisconnectAnswerNotificationConfig(
    DisconnectAnswerNotificationConfig* in_pDisconnectAnswerNotificationConfig ) {
    return setOwned( m_hDisconnectAnswerNotificationConfig, in_pDisconnectAnswerNotificationConfig, getLogger() );
}

} // namespace Velquin::Pstn

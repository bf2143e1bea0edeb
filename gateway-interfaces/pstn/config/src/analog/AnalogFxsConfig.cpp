#include "analog/AnalogFxsConfig.h"

#include <velquin/Finding.h>

#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogFxsConfig );
PSTN_CONFIG_CLASS_IMPL( AnalogFxsConfig::InboundCallHandlingConfig );
PSTN_CONFIG_CLASS_IMPL( AnalogFxsConfig::HotlineDialingConfig );
PSTN_CONFIG_CLASS_IMPL( AnalogFxsConfig::DisconnectAnswerNotificationConfig );

bool AnalogFxsConfig::HotlineDialingConfig::setDialingNumber( const char* in_szDialingNumber ) {
    return assignText( m_strDialingNumber, in_szDialingNumber, getLogger() );
}

bool AnalogFxsConfig::setInboundCallHandlingConfig( InboundCallHandlingConfig* in_pInboundCallHandlingConfig ) try {
    m_hInboundCallHandlingConfig = TSHandle<InboundCallHandlingConfig>( in_pInboundCallHandlingConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogFxsConfig::setHotlineDialingConfig( HotlineDialingConfig* in_pHotlineDialingConfig ) try {
    m_hHotlineDialingConfig = TSHandle<HotlineDialingConfig>( in_pHotlineDialingConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogFxsConfig::setDisconnectAnswerNotificationConfig(
    DisconnectAnswerNotificationConfig* in_pDisconnectAnswerNotificationConfig ) try {
    m_hDisconnectAnswerNotificationConfig =
        TSHandle<DisconnectAnswerNotificationConfig>( in_pDisconnectAnswerNotificationConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

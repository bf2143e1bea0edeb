#include "analog/AnalogFxoConfig.h"

#include "Setters.h"
#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogFxoConfig );
PSTN_CONFIG_NESTED_CLASS_IMPL( AnalogFxoConfig, InboundCallHandlingConfig );
PSTN_CONFIG_NESTED_CLASS_IMPL( AnalogFxoConfig, OutboundCallHandlingConfig );

bool AnalogFxoConfig::OutboundCallHandlingConfig::setInternationalDialingSpecialCharacterSubstitute(
    const char* in_szSubstitute ) {
    return assignText( m_strSpecialCharacterSubstitute, in_szSubstitute, getLogger() );
}

bool AnalogFxoConfig::setInboundCallHandlingConfig( InboundCallHandlingConfig* in_pInboundCallHandlingConfig ) {
    return setOwned( m_hInboundCallHandlingConfig, in_pInboundCallHandlingConfig, getLogger() );
}

bool AnalogFxoConfig::setOutboundCallHandlingConfig( OutboundCallHandlingConfig* in_pOutboundCallHandlingConfig ) {
    return setOwned( m_hOutboundCallHandlingConfig, in_pOutboundCallHandlingConfig, getLogger() );
}

bool AnalogFxoConfig::setDisconnectSupervisionConfig(
    AnalogDisconnectSupervisionConfig* in_pDisconnectSupervisionConfig ) {
    return setOwned( m_hDisconnectSupervisionConfig, in_pDisconnectSupervisionConfig, getLogger() );
}

} // namespace Velquin::Pstn

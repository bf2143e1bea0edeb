#include "analog/AnalogFxoConfig.h"

#include <velquin/Finding.h>

#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogFxoConfig );
PSTN_CONFIG_CLASS_IMPL( AnalogFxoConfig::InboundCallHandlingConfig );
PSTN_CONFIG_CLASS_IMPL( AnalogFxoConfig::OutboundCallHandlingConfig );

bool AnalogFxoConfig::OutboundCallHandlingConfig::setInternationalDialingSpecialCharacterSubstitute(
    const char* in_szSubstitute ) {
    return assignText( m_strSpecialCharacterSubstitute, in_szSubstitute, getLogger() );
}

bool AnalogFxoConfig::setInboundCallHandlingConfig( InboundCallHandlingConfig* in_pInboundCallHandlingConfig ) try {
    m_hInboundCallHandlingConfig = TSHandle<InboundCallHandlingConfig>( in_pInboundCallHandlingConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogFxoConfig::setOutboundCallHandlingConfig( OutboundCallHandlingConfig* in_pOutboundCallHandlingConfig ) try {
    m_hOutboundCallHandlingConfig = TSHandle<OutboundCallHandlingConfig>( in_pOutboundCallHandlingConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogFxoConfig::setDisconnectSupervisionConfig(
    AnalogDisconnectSupervisionConfig* in_pDisconnectSupervisionConfig ) try {
    m_hDisconnectSupervisionConfig = TSHandle<AnalogDisconnectSupervisionConfig>( in_pDisconnectSupervisionConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

#include "hardware/AnalogInterfaceConfig.h"

#include <utility>

#include "Setters.h"
#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogInterfaceConfig );

bool AnalogInterfaceConfig::setPhysicalConfig( TSHandle<AnalogInterfacePhysicalConfig> in_hPhysicalConfig ) {
    return setNotNull( m_hPhysicalConfig, std::move( in_hPhysicalConfig ), "!in_hPhysicalConfig.isNull()" );
}

bool AnalogInterfaceConfig::setPhoneNumber( const char* in_szPhoneNumber ) {
    return assignText( m_strPhoneNumber, in_szPhoneNumber, getLogger() );
}

bool AnalogInterfaceConfig::setCallerName( const char* in_szCallerName ) {
    return assignText( m_strCallerName, in_szCallerName, getLogger() );
}

} // namespace Velquin::Pstn

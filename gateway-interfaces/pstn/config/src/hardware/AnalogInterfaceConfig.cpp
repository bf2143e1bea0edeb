#include "hardware/AnalogInterfaceConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogInterfaceConfig );

bool AnalogInterfaceConfig::setPhysicalConfig( TSHandle<AnalogInterfacePhysicalConfig> in_hPhysicalConfig ) try {
    if ( !VELQUIN_ASSERT( !in_hPhysicalConfig.isNull() ) )
        return false;
    m_hPhysicalConfig = std::move( in_hPhysicalConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AnalogInterfaceConfig::setPhoneNumber( const char* in_szPhoneNumber ) {
    return assignText( m_strPhoneNumber, in_szPhoneNumber, getLogger() );
}

bool AnalogInterfaceConfig::setCallerName( const char* in_szCallerName ) {
    return assignText( m_strCallerName, in_szCallerName, getLogger() );
}

} // namespace Velquin::Pstn

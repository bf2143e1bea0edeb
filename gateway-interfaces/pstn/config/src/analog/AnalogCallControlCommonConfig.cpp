#include "analog/AnalogCallControlCommonConfig.h"

#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogCallControlCommonConfig );

bool AnalogCallControlCommonConfig::setToneSetName( const char* in_szToneSetName ) {
    return assignText( m_strToneSetName, in_szToneSetName, getLogger() );
}

bool AnalogCallControlCommonConfig::setDisplayName( const char* in_szDisplayName ) {
    return assignText( m_strDisplayName, in_szDisplayName, getLogger() );
}

} // namespace Velquin::Pstn

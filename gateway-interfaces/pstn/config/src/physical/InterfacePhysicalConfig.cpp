#include "physical/InterfacePhysicalConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( InterfacePhysicalConfig );

bool InterfacePhysicalConfig::setDisplayName( const char* in_szDisplayName ) {
    return assignText( m_strDisplayName, in_szDisplayName, getLogger() );
}

bool InterfacePhysicalConfig::setAudioConfig( AudioConfig* in_pAudioConfig ) try {
    const TSHandle<AudioConfig> pAudioConfig( in_pAudioConfig );
    if ( !VELQUIN_ASSERT( !pAudioConfig.isNull() ) )
        return false;
    m_hAudioConfig = pAudioConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

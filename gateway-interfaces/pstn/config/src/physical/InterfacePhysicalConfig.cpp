#include "physical/InterfacePhysicalConfig.h"

#include "Setters.h"
#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( InterfacePhysicalConfig );

bool InterfacePhysicalConfig::setDisplayName( const char* in_szDisplayName ) {
    return assignText( m_strDisplayName, in_szDisplayName, getLogger() );
}

bool InterfacePhysicalConfig::setAudioConfig( AudioConfig* in_pAudioConfig ) {
    return setOwned( m_hAudioConfig, in_pAudioConfig, getLogger(), "!pAudioConfig.isNull()" );
}

} // namespace Velquin::Pstn

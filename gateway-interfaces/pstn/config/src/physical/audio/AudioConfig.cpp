#include "physical/audio/AudioConfig.h"

#include "Setters.h"
#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AudioConfig );

bool AudioConfig::setToneSetName( const char* in_szToneSetName ) {
    return assignText( m_strToneSetName, in_szToneSetName, getLogger() );
}

bool AudioConfig::setEchoCancellationConfig( EchoCancellationConfig* in_pConfig ) {
    return setOwned( m_hEchoCancellation, in_pConfig, getLogger(), "!pEchoCancellationConfig.isNull()" );
}

bool AudioConfig::setAcousticEchoCancellationConfig( AcousticEchoCancellationConfig* in_pConfig ) {
    return setOwned( m_hAcousticEchoCancellation, in_pConfig, getLogger(),
                     "!pAcousticEchoCancellationConfig.isNull()" );
}

bool AudioConfig::setLevelControlConfig( LevelControlConfig* in_pConfig ) {
    return setOwned( m_hLevelControl, in_pConfig, getLogger(), "!pLevelControlConfig.isNull()" );
}

bool AudioConfig::setBackgroundNoiseAttenuationConfig( BackgroundNoiseAttenuationConfig* in_pConfig ) {
    return setOwned( m_hBackgroundNoiseAttenuation, in_pConfig, getLogger(),
                     "!pBackgroundNoiseAttenuationConfig.isNull()" );
}

bool AudioConfig::setDtmfRemovalConfig( DtmfRemovalConfig* in_pConfig ) {
    return setOwned( m_hDtmfRemoval, in_pConfig, getLogger(), "!pDtmfRemovalConfig.isNull()" );
}

} // namespace Velquin::Pstn

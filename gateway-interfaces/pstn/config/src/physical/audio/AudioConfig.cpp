#include "physical/audio/AudioConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AudioConfig );

bool AudioConfig::setToneSetName( const char* in_szToneSetName ) {
    return assignText( m_strToneSetName, in_szToneSetName, getLogger() );
}

bool AudioConfig::setEchoCancellationConfig( EchoCancellationConfig* in_pConfig ) try {
    const TSHandle<EchoCancellationConfig> pEchoCancellationConfig( in_pConfig );
    if ( !VELQUIN_ASSERT( !pEchoCancellationConfig.isNull() ) )
        return false;
    m_hEchoCancellation = pEchoCancellationConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AudioConfig::setAcousticEchoCancellationConfig( AcousticEchoCancellationConfig* in_pConfig ) try {
    const TSHandle<AcousticEchoCancellationConfig> pAcousticEchoCancellationConfig( in_pConfig );
    if ( !VELQUIN_ASSERT( !pAcousticEchoCancellationConfig.isNull() ) )
        return false;
    m_hAcousticEchoCancellation = pAcousticEchoCancellationConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AudioConfig::setLevelControlConfig( LevelControlConfig* in_pConfig ) try {
    const TSHandle<LevelControlConfig> pLevelControlConfig( in_pConfig );
    if ( !VELQUIN_ASSERT( !pLevelControlConfig.isNull() ) )
        return false;
    m_hLevelControl = pLevelControlConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AudioConfig::setBackgroundNoiseAttenuationConfig( BackgroundNoiseAttenuationConfig* in_pConfig ) try {
    const TSHandle<BackgroundNoiseAttenuationConfig> pBackgroundNoiseAttenuationConfig( in_pConfig );
    if ( !VELQUIN_ASSERT( !pBackgroundNoiseAttenuationConfig.isNull() ) )
        return false;
    m_hBackgroundNoiseAttenuation = pBackgroundNoiseAttenuationConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool AudioConfig::setDtmfRemovalConfig( DtmfRemovalConfig* in_pConfig ) try {
    const TSHandle<DtmfRemovalConfig> pDtmfRemovalConfig( in_pConfig );
    if ( !VELQUIN_ASSERT( !pDtmfRemovalConfig.isNull() ) )
        return false;
    m_hDtmfRemoval = pDtmfRemovalConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

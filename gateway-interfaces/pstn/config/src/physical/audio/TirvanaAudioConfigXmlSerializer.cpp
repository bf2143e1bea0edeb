#include "physical/audio/TirvanaAudioConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>

#include "physical/audio/AudioWording.h"
#include "physical/audio/TirvanaAudioConfig.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaAudioConfigXmlSerializer );

AudioConfig* TirvanaAudioConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<AudioConfig> pAudioConfig( AudioConfigXmlSerializer::read( in_pElement, in_xmlConfig ) );
    if ( pAudioConfig.isNull() )
        return nullptr;
    auto pTirvanaAudioConfig = dynamicOwnerCast<TirvanaAudioConfig>( std::move( pAudioConfig ) );
    if ( !VELQUIN_ASSERT( !pTirvanaAudioConfig.isNull() ) )
        return nullptr;

    const ElementReader reader( in_pElement, getLogger(), AUDIO_WORDING );
    if ( !reader.require( "voicePacketLengthInMs", LEADING_DECIMAL, *pTirvanaAudioConfig,
                          &TirvanaAudioConfig::setVoicePacketLength ) )
        return nullptr;
    return pTirvanaAudioConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaAudioConfigXmlSerializer::write( xmlNode* const, const AudioConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaAudioConfigXmlSerializer::write" );
}

AudioConfig* TirvanaAudioConfigXmlSerializer::newAudioConfig() {
    return new ( std::nothrow ) TirvanaAudioConfig();
}

} // namespace Velquin::Pstn

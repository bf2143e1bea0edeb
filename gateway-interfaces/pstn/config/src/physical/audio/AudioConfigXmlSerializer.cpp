#include "physical/audio/AudioConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>

#include "loading/XmlConfig.h"
#include "physical/audio/AcousticEchoCancellationConfigXmlSerializer.h"
#include "physical/audio/AudioWording.h"
#include "physical/audio/BackgroundNoiseAttenuationConfigXmlSerializer.h"
#include "physical/audio/DtmfRemovalConfigXmlSerializer.h"
#include "physical/audio/EchoCancellationConfigXmlSerializer.h"
#include "physical/audio/LevelControlConfigXmlSerializer.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AudioConfigXmlSerializer );

namespace {

/// One voice-processing block: its element, the creator of its serializer, its setter.
template <class TXmlSerializer, class TConfig>
struct Block {
    const char* szElement;
    TXmlSerializer* ( XmlSerializerObjectFactory::*newXmlSerializer )( const char* ) const;
    bool ( AudioConfig::*setConfig )( TConfig* );
    const char* szFailure;
};

// clang++ 14 needs a deduction guide for an aggregate.
template <class TXmlSerializer, class TConfig>
Block( const char*, TXmlSerializer* (XmlSerializerObjectFactory::*)( const char* ) const,
       bool ( AudioConfig::* )( TConfig* ), const char* ) -> Block<TXmlSerializer, TConfig>;

template <class TXmlSerializer, class TConfig>
bool readBlock( const ElementReader& in_audioReader, XmlConfig& in_xmlConfig, AudioConfig& out_config,
                const Logger& in_logger, const Block<TXmlSerializer, TConfig>& in_block ) {
    xmlNode* const pBlock = in_audioReader.requireChild( in_block.szElement );
    if ( !pBlock )
        return false;
    const ElementReader reader( pBlock, in_logger, AUDIO_WORDING );
    AttributeText type;
    if ( !reader.requireText( "type", type ) )
        return false;
    const UniqueObjPtr<TXmlSerializer> pXmlSerializer(
        ( in_xmlConfig.getXmlSerializerObjectFactory().*in_block.newXmlSerializer )( type.c_str() ) );
    if ( !VELQUIN_ASSERT( !pXmlSerializer.isNull() ) )
        return false;
    TConfig* const pConfig = pXmlSerializer->read( pBlock, in_xmlConfig );
    if ( !pConfig ) {
        VELQUIN_REPORT_ERROR( in_logger, in_block.szFailure );
        return false;
    }
    return ( out_config.*in_block.setConfig )( pConfig );
}

} // namespace

AudioConfig* AudioConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    const ElementReader reader( in_pElement, getLogger(), AUDIO_WORDING );
    UniqueObjPtr<AudioConfig> pAudioConfig( newAudioConfig() );
    if ( !VELQUIN_ASSERT( !pAudioConfig.isNull() ) )
        return nullptr;

    auto ePcmLaw = Media::Format::UNKNOWN;
    if ( !reader.require( "defaultPcmLaw", bySchema( Keywords::PCM_LAW ), ePcmLaw ) && !AttributeReader::passOver() )
        return nullptr;
    Media::Format mediaFormat;
    mediaFormat.initFrom( ePcmLaw );
    pAudioConfig->setMediaFormat( mediaFormat );

    if ( !reader.require( "toneSetName", ANY_TEXT, *pAudioConfig, &AudioConfig::setToneSetName ) )
        return nullptr;

    using Factory = XmlSerializerObjectFactory;
    const auto read = [&]( const auto& in_block ) {
        return readBlock( reader, in_xmlConfig, *pAudioConfig, getLogger(), in_block ) || AttributeReader::passOver();
    };
    const bool bRead =
        read( Block{ "EchoCancellation", &Factory::newEchoCancellationConfigXmlSerializer,
                     &AudioConfig::setEchoCancellationConfig, "failed to read echo cancellation configuration" } ) &&
        read( Block{ "AcousticEchoCancellation", &Factory::newAcousticEchoCancellationConfigXmlSerializer,
                     &AudioConfig::setAcousticEchoCancellationConfig,
                     "failed to read echo cancellation configuration" } ) &&
        read( Block{ "LevelControl", &Factory::newLevelControlConfigXmlSerializer, &AudioConfig::setLevelControlConfig,
                     "failed to read level control configuration" } ) &&
        read( Block{ "BackgroundNoiseAttenuation", &Factory::newBackgroundNoiseAttenuationConfigXmlSerializer,
                     &AudioConfig::setBackgroundNoiseAttenuationConfig,
                     "failed to read background noise attenuation configuration" } ) &&
        read( Block{ "DTMFRemoval", &Factory::newDtmfRemovalConfigXmlSerializer, &AudioConfig::setDtmfRemovalConfig,
                     "failed to read DTMF removal configuration" } );
    return bRead ? pAudioConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AudioConfigXmlSerializer::write( xmlNode* const, const AudioConfig& ) {
    return reportNotImplemented( getLogger(), "AudioConfigXmlSerializer::write" );
}

AudioConfig* AudioConfigXmlSerializer::newAudioConfig() {
    return new ( std::nothrow ) AudioConfig();
}

} // namespace Velquin::Pstn

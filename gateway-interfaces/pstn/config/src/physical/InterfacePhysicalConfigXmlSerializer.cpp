#include "physical/InterfacePhysicalConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>

#include "physical/PhysicalWording.h"
#include "physical/audio/AudioConfigXmlSerializer.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( InterfacePhysicalConfigXmlSerializer );

namespace {

constexpr ReaderWording AUDIO_CHILD_WORDING{ " for interface physial config ", "", "Missing element " };

} // namespace

TSHandle<InterfacePhysicalConfig> InterfacePhysicalConfigXmlSerializer::read( xmlNode* const in_pElement,
                                                                              XmlConfig& in_xmlConfig ) try {
    const ElementReader reader( in_pElement, getLogger(), PHYSICAL_WORDING );
    TSHandle<InterfacePhysicalConfig> hInterfacePhysicalConfig( newInterfacePhysicalConfig() );
    if ( !VELQUIN_ASSERT( !hInterfacePhysicalConfig.isNull() ) )
        return {};

    if ( !reader.requireKey( "ID", LEADING_DECIMAL, *hInterfacePhysicalConfig, &InterfacePhysicalConfig::setId ) ||
         !reader.require( "displayName", ANY_TEXT, *hInterfacePhysicalConfig,
                          &InterfacePhysicalConfig::setDisplayName ) )
        return {};

    xmlNode* const pAudio = reader.as( AUDIO_CHILD_WORDING ).requireChild( "audio" );
    if ( !pAudio )
        return AttributeReader::passOver() ? hInterfacePhysicalConfig : nullptr;
    const UniqueObjPtr<AudioConfigXmlSerializer> pAudioConfigXmlSerializer( newAudioConfigXmlSerializer() );
    if ( !VELQUIN_ASSERT( !pAudioConfigXmlSerializer.isNull() ) )
        return {};
    AudioConfig* const pAudioConfig = pAudioConfigXmlSerializer->read( pAudio, in_xmlConfig );
    if ( !pAudioConfig ) {
        VELQUIN_REPORT_ERROR( getLogger(), "failed to read audio configuration" );
        return {};
    }
    if ( !hInterfacePhysicalConfig->setAudioConfig( pAudioConfig ) )
        return {};
    return hInterfacePhysicalConfig;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool InterfacePhysicalConfigXmlSerializer::write( xmlNode* const, const InterfacePhysicalConfig& ) {
    return reportNotImplemented( getLogger(), "InterfacePhysicalConfigXmlSerializer::write" );
}

InterfacePhysicalConfig* InterfacePhysicalConfigXmlSerializer::newInterfacePhysicalConfig() {
    return nullptr;
}

AudioConfigXmlSerializer* InterfacePhysicalConfigXmlSerializer::newAudioConfigXmlSerializer() {
    return new ( std::nothrow ) AudioConfigXmlSerializer();
}

} // namespace Velquin::Pstn

#include "physical/audio/HardwareBackgroundNoiseAttenuationConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareBackgroundNoiseAttenuationConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for background noise attenuation config ",
                                 " for background noise attenuation config " };

} // namespace

bool HardwareBackgroundNoiseAttenuationConfigXmlSerializer::readAttributes(
    xmlNode* in_pElement, HardwareBackgroundNoiseAttenuationConfig& out_config ) {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    auto eMode = out_config.getMode();
    if ( !reader.requireSchemaKeyword( "mode", Keywords::BACKGROUND_NOISE_ATTENUATION_MODE, eMode ) )
        return false;
    out_config.setMode( eMode );

    auto eDirection = out_config.getDirection();
    if ( !reader.requireSchemaKeyword( "direction", Keywords::VOICE_DIRECTION, eDirection ) )
        return false;
    out_config.setDirection( eDirection );

    int nAttenuation = 0;
    if ( !reader.requireNumber( "attenuationIndB", LEADING_DECIMAL, nAttenuation ) )
        return false;
    out_config.setAttenuation( nAttenuation );
    return true;
}

} // namespace Velquin::Pstn

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
    using Config = HardwareBackgroundNoiseAttenuationConfig;
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    return reader.require( "mode", bySchema( Keywords::BACKGROUND_NOISE_ATTENUATION_MODE ), out_config,
                           &Config::setMode ) &&
           reader.require( "direction", bySchema( Keywords::VOICE_DIRECTION ), out_config, &Config::setDirection ) &&
           reader.require( "attenuationIndB", LEADING_DECIMAL, out_config, &Config::setAttenuation );
}

} // namespace Velquin::Pstn

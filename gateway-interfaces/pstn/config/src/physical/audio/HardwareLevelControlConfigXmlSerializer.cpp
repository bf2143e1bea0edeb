#include "physical/audio/HardwareLevelControlConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareLevelControlConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for level control config ", " for level control config " };

} // namespace

bool HardwareLevelControlConfigXmlSerializer::readAttributes( xmlNode* in_pElement,
                                                              HardwareLevelControlConfig& out_config ) {
    using Config = HardwareLevelControlConfig;
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    return reader.require( "mode", bySchema( Keywords::LEVEL_CONTROL_MODE ), out_config, &Config::setMode ) &&
           reader.require( "direction", bySchema( Keywords::VOICE_DIRECTION ), out_config, &Config::setDirection ) &&
           reader.require( "gainIndB", LEADING_DECIMAL, out_config, &Config::setGain ) &&
           reader.require( "targetLevelIndBM0", LEADING_DECIMAL, out_config, &Config::setTargetLevel );
}

} // namespace Velquin::Pstn

#include "physical/audio/HardwareDtmfRemovalConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareDtmfRemovalConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for DTMF removal config ", " for DTMF removal config " };

} // namespace

bool HardwareDtmfRemovalConfigXmlSerializer::readAttributes( xmlNode* in_pElement,
                                                             HardwareDtmfRemovalConfig& out_config ) {
    using Config = HardwareDtmfRemovalConfig;
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    return reader.require( "mode", bySchema( Keywords::DTMF_REMOVAL_MODE ), out_config, &Config::setMode ) &&
           reader.require( "direction", bySchema( Keywords::VOICE_DIRECTION ), out_config, &Config::setDirection );
}

} // namespace Velquin::Pstn

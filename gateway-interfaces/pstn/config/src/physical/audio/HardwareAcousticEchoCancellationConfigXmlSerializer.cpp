#include "physical/audio/HardwareAcousticEchoCancellationConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareAcousticEchoCancellationConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for acoustic echo cancellation config ", " for acoustic echo cancellation config " };

} // namespace

bool HardwareAcousticEchoCancellationConfigXmlSerializer::readAttributes(
    xmlNode* in_pElement, HardwareAcousticEchoCancellationConfig& out_config ) {
    using Config = HardwareAcousticEchoCancellationConfig;
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    return reader.require( "mode", bySchema( Keywords::ACOUSTIC_ECHO_CANCELLATION_MODE ), out_config,
                           &Config::setMode );
}

} // namespace Velquin::Pstn

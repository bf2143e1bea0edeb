#include "physical/audio/HardwareEchoCancellationConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareEchoCancellationConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for echo cancellation config ", "] for echo cancellation config " };

} // namespace

bool HardwareEchoCancellationConfigXmlSerializer::readAttributes( xmlNode* in_pElement,
                                                                  HardwareEchoCancellationConfig& out_config ) {
    using Config = HardwareEchoCancellationConfig;
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    return reader.require( "mode", bySchema( Keywords::ECHO_CANCELLATION_MODE ), out_config, &Config::setMode ) &&
           reader.require( "comfortNoiseMode", bySchema( Keywords::COMFORT_NOISE_MODE ), out_config,
                           &Config::setComfortNoiseMode ) &&
           reader.require( "tailDisplacementInMs", LEADING_DECIMAL, out_config, &Config::setTailDisplacement ) &&
           reader.require( "doubleTalkBehavior", bySchema( Keywords::DOUBLE_TALK_BEHAVIOR ), out_config,
                           &Config::setDoubleTalkBehavior );
}

} // namespace Velquin::Pstn

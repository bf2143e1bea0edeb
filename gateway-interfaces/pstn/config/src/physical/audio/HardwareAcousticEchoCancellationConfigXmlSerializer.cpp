#include "physical/audio/HardwareAcousticEchoCancellationConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareAcousticEchoCancellationConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for acoustic echo cancellation config ", " for acoustic echo cancellation config " };

} // namespace

bool HardwareAcousticEchoCancellationConfigXmlSerializer::readAttributes(
    xmlNode* in_pElement, HardwareAcousticEchoCancellationConfig& out_config ) {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    auto eMode = out_config.getMode();
    if ( !reader.requireSchemaKeyword( "mode", Keywords::ACOUSTIC_ECHO_CANCELLATION_MODE, eMode ) )
        return false;
    out_config.setMode( eMode );
    return true;
}

} // namespace Velquin::Pstn

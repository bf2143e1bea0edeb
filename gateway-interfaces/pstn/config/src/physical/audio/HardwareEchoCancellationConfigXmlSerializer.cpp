#include "physical/audio/HardwareEchoCancellationConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareEchoCancellationConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for echo cancellation config ", "] for echo cancellation config " };

} // namespace

bool HardwareEchoCancellationConfigXmlSerializer::readAttributes( xmlNode* in_pElement,
                                                                  HardwareEchoCancellationConfig& out_config ) {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    auto eMode = out_config.getMode();
    if ( !reader.requireSchemaKeyword( "mode", Keywords::ECHO_CANCELLATION_MODE, eMode ) )
        return false;
    out_config.setMode( eMode );

    auto eComfortNoiseMode = out_config.getComfortNoiseMode();
    if ( !reader.requireSchemaKeyword( "comfortNoiseMode", Keywords::COMFORT_NOISE_MODE, eComfortNoiseMode ) )
        return false;
    out_config.setComfortNoiseMode( eComfortNoiseMode );

    unsigned int uTailDisplacement = 0;
    if ( !reader.requireNumber( "tailDisplacementInMs", LEADING_DECIMAL, uTailDisplacement ) )
        return false;
    out_config.setTailDisplacement( uTailDisplacement );

    auto eDoubleTalkBehavior = out_config.getDoubleTalkBehavior();
    if ( !reader.requireSchemaKeyword( "doubleTalkBehavior", Keywords::DOUBLE_TALK_BEHAVIOR, eDoubleTalkBehavior ) )
        return false;
    out_config.setDoubleTalkBehavior( eDoubleTalkBehavior );
    return true;
}

} // namespace Velquin::Pstn

#include "physical/audio/HardwareLevelControlConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareLevelControlConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for level control config ", " for level control config " };

} // namespace

bool HardwareLevelControlConfigXmlSerializer::readAttributes( xmlNode* in_pElement,
                                                              HardwareLevelControlConfig& out_config ) {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    auto eMode = out_config.getMode();
    if ( !reader.requireSchemaKeyword( "mode", Keywords::LEVEL_CONTROL_MODE, eMode ) )
        return false;
    out_config.setMode( eMode );

    auto eDirection = out_config.getDirection();
    if ( !reader.requireSchemaKeyword( "direction", Keywords::VOICE_DIRECTION, eDirection ) )
        return false;
    out_config.setDirection( eDirection );

    int nNumber = 0;
    if ( !reader.requireNumber( "gainIndB", LEADING_DECIMAL, nNumber ) )
        return false;
    out_config.setGain( nNumber );
    if ( !reader.requireNumber( "targetLevelIndBM0", LEADING_DECIMAL, nNumber ) )
        return false;
    out_config.setTargetLevel( nNumber );
    return true;
}

} // namespace Velquin::Pstn

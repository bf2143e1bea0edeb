#include "physical/audio/HardwareDtmfRemovalConfigXmlSerializer.h"

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareDtmfRemovalConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for DTMF removal config ", " for DTMF removal config " };

} // namespace

bool HardwareDtmfRemovalConfigXmlSerializer::readAttributes( xmlNode* in_pElement,
                                                             HardwareDtmfRemovalConfig& out_config ) {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    auto eMode = out_config.getMode();
    if ( !reader.requireSchemaKeyword( "mode", Keywords::DTMF_REMOVAL_MODE, eMode ) )
        return false;
    out_config.setMode( eMode );

    auto eDirection = out_config.getDirection();
    if ( !reader.requireSchemaKeyword( "direction", Keywords::VOICE_DIRECTION, eDirection ) )
        return false;
    out_config.setDirection( eDirection );
    return true;
}

} // namespace Velquin::Pstn

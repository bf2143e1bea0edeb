#include "physical/audio/HardwareDtmfRemovalConfigXmlSerializer.h"

#include "xml/ElementReader.h"
#include "xml/Keywords.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( HardwareDtmfRemovalConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ " for DTMF removal config ", " for DTMF removal config " };

} // namespace

bool HardwareDtmfRemovalConfigXmlSerializer::readAttributes( xmlNode* in_pElement,
                                                             HardwareDtmfRemovalConfig& out_config ) {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    bool bEnabled = false;
    if ( !reader.requireSchemaKeyword( "mode", Keywords::ENABLED_DISABLED, bEnabled ) )
        return false;
    out_config.enable( bEnabled );

    auto eDirection = out_config.getDirection();
    if ( !reader.requireSchemaKeyword( "direction", Keywords::VOICE_DIRECTION, eDirection ) )
        return false;
    out_config.setDirection( eDirection );
    return true;
}

} // namespace Velquin::Pstn

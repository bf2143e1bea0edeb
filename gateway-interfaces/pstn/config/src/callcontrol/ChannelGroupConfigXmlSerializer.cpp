#include "callcontrol/ChannelGroupConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( ChannelGroupConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for channel group ", "] for channel group ", "Missing attribute [", "",
                                 "Invalid attribute value [" };

} // namespace

ChannelGroupConfig* ChannelGroupConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& ) try {
    UniqueObjPtr<ChannelGroupConfig> pChannelGroupConfig( new ChannelGroupConfig() );
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    ChannelGroupConfig& config = *pChannelGroupConfig;
    const bool bRead =
        reader.requireKey( "ID", ANY_TEXT, config, &ChannelGroupConfig::setId ) &&
        reader.requireKey( "direction", Keywords::CHANNEL_DIRECTION, config, &ChannelGroupConfig::setDirection ) &&
        ( config.getDirection() == PSTNChannel::IN ||
          reader.require( "outboundHuntingScheme", Keywords::HUNTING_SCHEME, config,
                          &ChannelGroupConfig::setOutboundHuntingScheme ) );
    return bRead ? pChannelGroupConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool ChannelGroupConfigXmlSerializer::write( xmlNode* const, const ChannelGroupConfig& ) {
    return reportNotImplemented( getLogger(), "ChannelGroupConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn

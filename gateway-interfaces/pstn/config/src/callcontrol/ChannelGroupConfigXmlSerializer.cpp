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
    AttributeText id;
    if ( !reader.requireText( "ID", id ) || !pChannelGroupConfig->setId( id.c_str() ) )
        return nullptr;

    auto eDirection = pChannelGroupConfig->getDirection();
    if ( !reader.requireKeyword( "direction", Keywords::CHANNEL_DIRECTION, eDirection ) )
        return nullptr;
    pChannelGroupConfig->setDirection( eDirection );

    if ( eDirection != PSTNChannel::IN ) {
        auto eHuntingScheme = pChannelGroupConfig->getOutboundHuntingScheme();
        if ( !reader.requireKeyword( "outboundHuntingScheme", Keywords::HUNTING_SCHEME, eHuntingScheme ) )
            return nullptr;
        pChannelGroupConfig->setOutboundHuntingScheme( eHuntingScheme );
    }
    return pChannelGroupConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool ChannelGroupConfigXmlSerializer::write( xmlNode* const, const ChannelGroupConfig& ) {
    return reportNotImplemented( getLogger(), "ChannelGroupConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn

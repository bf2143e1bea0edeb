#include "callcontrol/isdn/IsdnBChannelRange.h"

#include <string>

#include <velquin/UniqueObjPtr.h>

namespace Velquin::Pstn {

namespace {

constexpr std::string_view CHANNEL_HINT = "The value must be a positive integer number.";

} // namespace

bool IsdnBChannelRange::read( const AttributeReader& in_reader, const CallControlConfig& in_callControlConfig,
                              const Wording& in_wording, const Logger& in_logger ) {
    AttributeText channelGroupId;
    if ( !in_reader.as( in_wording.channelGroup ).requireText( "channelGroupID", channelGroupId ) )
        return false;
    hChannelGroup = in_callControlConfig.getChannelGroupConfig( channelGroupId.c_str() );
    if ( hChannelGroup.isNull() ) {
        VELQUIN_REPORT( in_logger, ( Fault{ Rules::UNKNOWN_CHANNEL_GROUP, "channelGroupID", channelGroupId.c_str() } ),
                        "Could not retrieve channel group config " << channelGroupId.view() );
        return false;
    }
    const NumberRule firstChannel{ NumberPolicy::WHOLE, CHANNEL_HINT, in_wording.szFirstChannelName };
    const NumberRule lastChannel{ NumberPolicy::WHOLE, CHANNEL_HINT };
    if ( !in_reader.as( in_wording.firstChannel ).require( "firstChannel", firstChannel, uFirstChannel ) ||
         !in_reader.as( in_wording.lastChannel ).require( "lastChannel", lastChannel, uLastChannel ) )
        return false;
    if ( uFirstChannel > uLastChannel ) {
        Finding finding;
        finding.eKind = Finding::Kind::INVALID_VALUE;
        finding.strRule = Rules::CHANNELS_SWAPPED;
        finding.nLevel = Logger::WARNING_LEVEL;
        finding.strAttribute = "firstChannel";
        finding.strValue = std::to_string( uFirstChannel );
        finding.strHint = "it is greater than lastChannel=\"" + std::to_string( uLastChannel ) + "\"; exchange the two";
        in_reader.reportDeclared( "B-Channel range [" + std::to_string( uFirstChannel ) + ".." +
                                      std::to_string( uLastChannel ) + "] without channels",
                                  ". Make sure that firstChannel is not greater than lastChannel.",
                                  std::move( finding ) );
    }
    return true;
}

bool IsdnBChannelRange::addTo( const IsdnCommonConfig& in_isdnCommonConfig, const InterfaceConfig& in_interfaceConfig,
                               const Logger& in_logger ) const {
    UniqueObjPtr<BChannelRangeConfig> pRange( new BChannelRangeConfig() );
    pRange->setFirstChannel( uFirstChannel );
    pRange->setLastChannel( uLastChannel );
    if ( !pRange->setIsdnCommonConfig( &in_isdnCommonConfig ) ) {
        VELQUIN_REPORT_ERROR( in_logger, "failed to set IsdnCommonConfig for BChannelRange" );
        return false;
    }
    if ( !pRange->setInterfaceConfig( &in_interfaceConfig ) ) {
        VELQUIN_REPORT_ERROR( in_logger, "failed to set interface for BChannelRange" );
        return false;
    }
    return hChannelGroup->addBChannelRangeConfig( pRange.release() );
}

} // namespace Velquin::Pstn

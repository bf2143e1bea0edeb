#include "callcontrol/isdn/IsdnBChannelRange.h"

#include <string>

#include <velquin/UniqueObjPtr.h>

namespace Velquin::Pstn {

namespace {

constexpr NumberRule CHANNEL{ NumberPolicy::WHOLE, "The value must be a positive integer number." };

/// @param in_szReportedName what the attribute is called when it is no number
bool readChannel( const AttributeReader& in_reader, const char* in_szAttribute, const char* in_szReportedName,
                  unsigned int& out_uChannel ) {
    AttributeText text;
    return in_reader.requireText( in_szAttribute, text ) &&
           in_reader.takeNumber( in_szReportedName, text, CHANNEL, out_uChannel );
}

} // namespace

bool IsdnBChannelRange::read( const AttributeReader& in_reader, const CallControlConfig& in_callControlConfig,
                              const Wording& in_wording, const Logger& in_logger ) {
    AttributeText channelGroupId;
    if ( !in_reader.as( in_wording.channelGroup ).requireText( "channelGroupID", channelGroupId ) )
        return false;
    hChannelGroup = in_callControlConfig.getChannelGroupConfig( channelGroupId.c_str() );
    if ( hChannelGroup.isNull() ) {
        VELQUIN_REPORT_ERROR( in_logger, "Could not retrieve channel group config " << channelGroupId.view() );
        return false;
    }
    if ( !readChannel( in_reader.as( in_wording.firstChannel ), "firstChannel", in_wording.szFirstChannelName,
                       uFirstChannel ) ||
         !readChannel( in_reader.as( in_wording.lastChannel ), "lastChannel", "lastChannel", uLastChannel ) )
        return false;
    if ( uFirstChannel > uLastChannel )
        in_reader.reportDeclared( "B-Channel range [" + std::to_string( uFirstChannel ) + ".." +
                                      std::to_string( uLastChannel ) + "] without channels",
                                  ". Make sure that firstChannel is not greater than lastChannel.",
                                  Logger::WARNING_LEVEL );
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

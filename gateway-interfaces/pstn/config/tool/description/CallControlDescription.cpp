#include <map>

#include "Describing.h"

namespace Velquin::Pstn {

/// Those settings of ISDN that FAS and NFAS share.
Json describe( const IsdnCommonConfig& in_isdn ) {
    return Json::object( {
        { "termination", keyword( Keywords::TERMINATION, in_isdn.getTermination() ) },
        { "switchVariant", keyword( Keywords::SWITCH_VARIANT, in_isdn.getSwitchVariant() ) },
        { "BChannelNegotiation", keyword( Keywords::B_CHANNEL_NEGOTIATION, in_isdn.getBChannelNegociation() ) },
        { "initiateRestartProcedure", keyword( Keywords::YES_NO, in_isdn.getInitiateRestartProcedure() ) },
        { "inbandProgressTonesGeneration",
          keyword( Keywords::TONES_GENERATION, in_isdn.getInbandProgressTonesGeneration() ) },
        { "inbandProgressTonesIndicator",
          keyword( Keywords::TONES_INDICATOR, in_isdn.getInbandProgressTonesIndicator() ) },
        { "callerNameLocation", keyword( Keywords::CALLER_NAME_LOCATION, in_isdn.getCallerNameLocation() ) },
        { "waitFacilityDelayMs", in_isdn.getFacilityDelayMs() },
    } );
}

Json describe( const IsdnNfasGroupMemberConfig& in_member ) {
    return Json::object( {
        { "nfasInterfaceID", in_member.getNfasInterfaceID() },
        { "DChannelMode", keyword( Keywords::NFAS_D_CHANNEL_MODE, in_member.getDChannelMode() ) },
    } );
}

Json describe( const AnalogFxoConfig::InboundCallHandlingConfig& in_inbound ) {
    Json notify = Json::object( {
        { "condition", keyword( Keywords::FXO_NOTIFY_CONDITION, in_inbound.getNotifyCondition() ) },
        { "numberOfRings", in_inbound.getNumberOfRings() },
        { "delayInMs", in_inbound.getNotifyDelayMs() },
    } );
    const Json condition = keyword( Keywords::FXO_INBOUND_CONNECT_CONDITION, in_inbound.getConnectCondition() );
    const Json callerId = keyword( Keywords::FXO_CALLER_ID_TYPE, in_inbound.getCallerIdType() );
    return Json::object( {
        { "notifyOutboundSide", std::move( notify ) },
        { "connect", Json::object( { { "condition", condition } } ) },
        { "callerID", Json::object( { { "type", callerId } } ) },
    } );
}

Json describe( const AnalogFxoConfig::OutboundCallHandlingConfig& in_outbound ) {
    Json dial = Json::object( {
        { "active", keyword( Keywords::YES_NO, in_outbound.isDialingActive() ) },
        { "waitForDialTone", keyword( Keywords::YES_NO, in_outbound.isWaitForDialToneEnabled() ) },
        { "InternationalDialingSpecialCharacter",
          std::string( 1, in_outbound.getInternationalDialingSpecialCharacter() ) },
        { "InternationalDialingSpecialCharacterSubstitute",
          in_outbound.getInternationalDialingSpecialCharacterSubstitute() },
        { "preDialDelayInMs", in_outbound.getPreDialDelayMs() },
        { "interDigitDelayInMs", in_outbound.getInterDigitDelayMs() },
        { "DTMFDigitDurationInMs", in_outbound.getDTMFDigitDurationMs() },
    } );
    Json outbound = Json::object( {
        { "condition", keyword( Keywords::FXO_CONNECT_SUPERVISION, in_outbound.getOutboundSideConnectSupervision() ) },
        { "disconnectTimeoutMs", in_outbound.getDisconnectTimeoutMs() },
        { "connectOnNoRemoteRingTimeoutMs", in_outbound.getConnectOnNoRemoteRingTimeoutMs() },
    } );
    Json inbound = Json::object( {
        { "condition",
          keyword( Keywords::FXO_OUTBOUND_CONNECT_CONDITION, in_outbound.getInboundSideConnectCondition() ) },
        { "delayInMs", in_outbound.getConnectDelayMs() },
    } );
    return Json::object( {
        { "dial", std::move( dial ) },
        { "connectOutboundSide", std::move( outbound ) },
        { "connect", std::move( inbound ) },
    } );
}

Json describe( const AnalogDisconnectSupervisionConfig& in_supervision ) {
    std::map<std::string, Json> mapDetectors; // the order of the model's map is no order
    for ( const auto& [strName, hDetector] : in_supervision.getDisconnectDetectorsMap() ) {
        Json& sequence = mapDetectors.emplace( strName, Json::array() ).first->second;
        for ( const auto& [strFirst, strSecond] : hDetector->getSequence() )
            sequence.push_back( strSecond.empty() ? strFirst
                                                  : std::string( strFirst ).append( "/" ).append( strSecond ) );
    }
    Json detectors = Json::object();
    for ( auto& [strName, sequence] : mapDetectors )
        append( detectors, strName, Json::object( { { "sequence", std::move( sequence ) } } ) );
    Json ringCadence = Json::object( {
        { "active", keyword( Keywords::YES_NO, in_supervision.isRingCadenceDetectionEnabled() ) },
        { "ringCadenceOffDelayMs", in_supervision.getRingCadenceOffDelayMs() },
    } );
    return Json::object(
        { { "ringCadenceDetector", std::move( ringCadence ) }, { "detectors", std::move( detectors ) } } );
}

Json describe( const AnalogFxoConfig& in_fxo ) {
    return Json::object( {
        { "displayName", in_fxo.getDisplayName() },
        { "toneSetName", in_fxo.getToneSetName() },
        { "minimumOnHookDurationMs", in_fxo.getOnHookMinimumDurationMs() },
        { "inboundCallHandling",
          describePart<AnalogFxoConfig::InboundCallHandlingConfig>( in_fxo.getInboundCallHandlingConfigHandle() ) },
        { "outboundCallHandling",
          describePart<AnalogFxoConfig::OutboundCallHandlingConfig>( in_fxo.getOutboundCallHandlingConfigHandle() ) },
        { "disconnectSupervision",
          describePart<AnalogDisconnectSupervisionConfig>( in_fxo.getDisconnectSupervisonConfigHandle() ) },
    } );
}

Json describe( const AnalogFxsConfig::InboundCallHandlingConfig& in_inbound ) {
    return Json::object( {
        { "relayEarlyMedia", keyword( Keywords::ENABLED_DISABLED, in_inbound.isRelayEarlyMediaEnabled() ) },
        { "minExpectedDigits", in_inbound.getMinExpectedDigits() },
        { "interDigitTimeoutMs", in_inbound.getInterDigitTimeoutMs() },
        { "busyToneDurationMs", in_inbound.getBusyToneDurationMs() },
        { "dialToneDurationMs", in_inbound.getDialToneDurationMs() },
    } );
}

Json describe( const AnalogFxsConfig::HotlineDialingConfig& in_hotline ) {
    return Json::object( {
        { "enable", keyword( Keywords::YES_NO, in_hotline.isEnabled() ) },
        { "delayBeforeDialingMs", in_hotline.getDelayBeforeDialingMs() },
        { "dialingNumber", in_hotline.getDialingNumber() },
    } );
}

Json describe( const AnalogFxsConfig::DisconnectAnswerNotificationConfig& in_notification ) {
    return Json::object( {
        { "mode", keyword( Keywords::FXS_NOTIFICATION_MODE, in_notification.getMode() ) },
        { "currentDisconnectDurationMs", in_notification.getCurrentDisconnectDurationMs() },
    } );
}

Json describe( const AnalogFxsConfig& in_fxs ) {
    return Json::object( {
        { "displayName", in_fxs.getDisplayName() },
        { "toneSetName", in_fxs.getToneSetName() },
        { "regretTimeMs", in_fxs.getRegretTimeMs() },
        { "oosBehavior", keyword( Keywords::FXS_OUT_OF_SERVICE_BEHAVIOR, in_fxs.getOutOfServiceBehavior() ) },
        { "inboundCallHandling",
          describePart<AnalogFxsConfig::InboundCallHandlingConfig>( in_fxs.getInboundCallHandlingConfigHandle() ) },
        { "hotlineDialing",
          describePart<AnalogFxsConfig::HotlineDialingConfig>( in_fxs.getHotlineDialingConfigHandle() ) },
        { "disconnectAnswerNotification", describePart<AnalogFxsConfig::DisconnectAnswerNotificationConfig>(
                                              in_fxs.getDisconnectAnswerNotificationConfig() ) },
    } );
}

Json describe( const ChannelGroupConfig& in_group ) {
    return Json::object( {
        { "direction", keyword( Keywords::CHANNEL_DIRECTION, in_group.getDirection() ) },
        { "outboundHuntingScheme", keyword( Keywords::HUNTING_SCHEME, in_group.getOutboundHuntingScheme() ) },
    } );
}

/// The interfaces that the configuration is applied to.
Json describeLines( const IsdnFasConfig& in_fas ) {
    return listInterfaces( in_fas.getApplyToDigitalInterfaces() );
}
Json describeLines( const AppliedAnalogCallControlConfig& in_analog ) {
    return listInterfaces( in_analog.getApplyToAnalogInterfaces() );
}

/// Names of the configurations that a range can refer to, "FAS 1".
using Names = std::map<const void*, std::string>;

/// The section of all configurations of a kind; null when the call control of that kind is absent.
template <class TConfig, class TConfigs>
Json describeAll( const char* in_szKind, const TConfigs* in_pConfigs, Names& inout_mapNames ) {
    if ( !in_pConfigs )
        return {};
    Json section = Json::object();
    for ( const auto& [uId, hConfig] : *in_pConfigs ) {
        const std::string strId = std::to_string( uId );
        inout_mapNames[dynamic_cast<const void*>( hConfig.get() )] = in_szKind + ( " " + strId );
        Json settings = describeMarked<TConfig>( *hConfig, {} );
        if constexpr ( std::is_same_v<TConfigs, IsdnConfig::NfasConfigs> ) {
            append( settings, "hasPrimaryDChannel", hConfig->hasPrimaryDChannel() );
            Json members = Json::object();
            for ( const auto& [strLongId, hMember] : hConfig->getMemberInterfaces() ) {
                Json member = Json::object( { { "longId", strLongId } } );
                member.update( describeMarked( *hMember, IsdnNfasGroupMemberConfig() ) );
                append( members, hMember->getInterfaceConfig()->getUniqueId( true ), std::move( member ) );
            }
            append( settings, "members", std::move( members ) );
        } else {
            append( settings, "appliedTo", describeLines( *hConfig ) );
        }
        append( section, strId, std::move( settings ) );
    }
    return section;
}

/// The ranges of a group by the interface that has them.
Json describeRanges( const ChannelGroupConfig& in_group, const Names& in_mapNames ) {
    Json ranges = Json::object();
    std::string strLine;
    for ( const auto& hRange : in_group.getBChannelRangeConfig() ) {
        Json range = Json::object(
            { { "firstChannel", hRange->getFirstChannel() }, { "lastChannel", hRange->getLastChannel() } } );
        const auto name = [&]( const auto& in_pConfig ) {
            const auto it = in_mapNames.find( dynamic_cast<const void*>( in_pConfig.get() ) );
            if ( it != in_mapNames.end() )
                range["callControl"] = it->second;
        };
        name( hRange->getIsdnCommonConfig() );
        name( hRange->getFxoConfig() );
        name( hRange->getFxsConfig() );
        // The set has the ranges of an interface one behind the other.
        if ( strLine != hRange->getInterfaceConfig()->getUniqueId( true ) ) {
            strLine = hRange->getInterfaceConfig()->getUniqueId( true );
            append( ranges, strLine, Json::array() );
        }
        ranges.back().push_back( std::move( range ) );
    }
    return ranges;
}

void describeCallControl( Json& inout_model, const CallControlConfig* in_pCallControl ) {
    const IsdnConfig* const pIsdn = in_pCallControl ? in_pCallControl->getIsdnConfig().get() : nullptr;
    const AnalogCallControlConfig* const pAnalog = in_pCallControl ? in_pCallControl->getAnalogConfig().get() : nullptr;
    Names mapNames;
    Json nfas = describeAll<IsdnCommonConfig>( "NFAS", pIsdn ? &pIsdn->getNfasConfigs() : nullptr, mapNames );
    Json fas = describeAll<IsdnCommonConfig>( "FAS", pIsdn ? &pIsdn->getFasConfigs() : nullptr, mapNames );
    Json fxo = describeAll<AnalogFxoConfig>( "FXO", pAnalog ? &pAnalog->getFxoConfigs() : nullptr, mapNames );
    Json fxs = describeAll<AnalogFxsConfig>( "FXS", pAnalog ? &pAnalog->getFxsConfigs() : nullptr, mapNames );
    Json groups = Json::object();
    if ( in_pCallControl ) {
        for ( const auto& [strId, hGroup] : in_pCallControl->getChannelGroupsConfig() ) {
            Json settings = describeMarked( *hGroup, ChannelGroupConfig() );
            append( settings, "ranges", describeRanges( *hGroup, mapNames ) );
            append( groups, strId, std::move( settings ) );
        }
    }
    append( inout_model, "channelGroups", std::move( groups ) );
    append( inout_model, "NFAS", std::move( nfas ) );
    append( inout_model, "FAS", std::move( fas ) );
    append( inout_model, "FXO", std::move( fxo ) );
    append( inout_model, "FXS", std::move( fxs ) );
}

} // namespace Velquin::Pstn

#include "ModelText.h"

#include <set>
#include <sstream>

#include "PstnConfig.h"
#include "hardware/InterfaceKind.h"

namespace Velquin::Pstn {

namespace {

/// Writes the lines of one object.
class Lines {
public:
    Lines( std::ostream& out_stream, std::string in_strWhere )
        : m_stream( out_stream ), m_strWhere( std::move( in_strWhere ) ) {}

    Lines below( const std::string& in_strWhere ) const { return { m_stream, m_strWhere + " " + in_strWhere }; }

    template <class T>
    const Lines& operator()( const char* in_szName, const T& in_value ) const {
        m_stream << m_strWhere << ' ' << in_szName << " = ";
        if constexpr ( std::is_enum_v<T> )
            m_stream << static_cast<int>( in_value );
        else if constexpr ( std::is_convertible_v<T, std::string> )
            m_stream << '"' << in_value << '"';
        else
            m_stream << in_value;
        m_stream << '\n';
        return *this;
    }
    const Lines& operator()( const char* in_szName, char in_c ) const {
        return ( *this )( in_szName, std::string( 1, in_c ) );
    }
    template <class T>
    const Lines& operator()( const char* in_szName, const Fallible<T>& in_value ) const {
        return in_value.isSet() ? ( *this )( in_szName, in_value.get() ) : none( in_szName );
    }
    const Lines& none( const char* in_szName ) const {
        m_stream << m_strWhere << ' ' << in_szName << " = none\n";
        return *this;
    }

    /// Describes what a handle holds below this, if it holds something of that class.
    template <class T, class THandle>
    void part( const char* in_szName, const THandle& in_handle ) const {
        if ( const auto* const pPart = in_handle.isNull() ? nullptr : dynamic_cast<const T*>( in_handle.get() ) )
            describe( below( in_szName ), *pPart );
        else
            none( in_szName );
    }

private:
    std::ostream& m_stream;
    std::string m_strWhere;
};

std::string number( unsigned long long in_ullNumber ) {
    return std::to_string( in_ullNumber );
}

// ---- Hardware

void describe( const Lines& in_lines, const TirvanaThreadGroupConfig& in_threads ) {
    in_lines( "count", in_threads.getThreadCount() )( "priority", in_threads.getThreadsPriority().getCode() );
}

void describe( const Lines& in_lines, const ProviderConfig& in_provider ) {
    const auto* const pProvider = dynamic_cast<const TirvanaProviderConfig*>( &in_provider );
    if ( !pProvider )
        return;
    describe( in_lines.below( "BChannelsThreads" ), pProvider->getBChannelsThreadsConfig() );
    describe( in_lines.below( "DChannelsThreads" ), pProvider->getDChannelsThreadsConfig() );
    in_lines( "reverseBitsOfTx", pProvider->isReverseBitsOfTxMediaStreamsEnabled() );
    in_lines( "reverseBitsOfRx", pProvider->isReverseBitsOfRxMediaStreamsEnabled() );
}

void describe( const Lines& in_lines, const AnalogInterfaceConfig& in_port ) {
    in_lines( "mediaType", in_port.getMediaType() )( "phoneNumber", in_port.getPhoneNumber() );
    in_lines( "callerName", in_port.getCallerName() );
    if ( const auto* const pPort = dynamic_cast<const TirvanaAnalogInterfaceConfig*>( &in_port ) )
        in_lines( "tirpipeInterface", pPort->getTirpipeInterface() );
}

void describe( const Lines& in_lines, const DigitalInterfaceConfig& in_span ) {
    const auto* const pVirtual = dynamic_cast<const TirvanaDigitalVirtualInterfaceConfig*>( &in_span );
    in_lines( "virtual", pVirtual != nullptr );
    if ( pVirtual )
        in_lines( "peerBoard", pVirtual->getPeerVirtualBoardId() )( "peer", pVirtual->getPeerVirtualInterfaceId() );
    if ( const auto* const pSpan = dynamic_cast<const TirvanaDigitalInterfaceConfig*>( &in_span ) )
        in_lines( "tirpipe", pSpan->getTirpipe() )( "primaryClockReference", pSpan->isPrimaryClockReference() );
}

void describe( const Lines& in_lines, const AnalogBoardConfig& in_board ) {
    if ( const auto* const pBoard = dynamic_cast<const TirvanaAnalogBoardConfig*>( &in_board ) )
        in_lines( "tirpipe", pBoard->getTirpipe() );
}

void describe( const Lines& in_lines, const DigitalBoardConfig& in_board ) {
    in_lines( "virtual", dynamic_cast<const TirvanaDigitalVirtualBoardConfig*>( &in_board ) != nullptr );
    const auto* const pBoard = dynamic_cast<const TirvanaDigitalBoardConfig*>( &in_board );
    if ( !pBoard )
        return;
    const auto hReference = pBoard->getPrimaryClockReferenceInterfaceConfig();
    if ( hReference.isNull() )
        in_lines.none( "primaryClockReference" );
    else
        in_lines( "primaryClockReference", hReference->getUniqueId( true ) );
}

/// Calls `in_visit( where, board )` for each board of the kind and `in_visit( where, interface )` for each interface.
template <class TKind, class Visit>
void visitBoards( const Config& in_config, Visit in_visit ) {
    for ( const auto& [uBoardId, hBoard] : TKind::getBoards( in_config ) ) {
        const std::string strBoard = TKind::NAME + ( " " + number( uBoardId ) );
        in_visit( strBoard, *hBoard );
        typename TKind::Interfaces vecInterfaces;
        TKind::getInterfaces( *hBoard, vecInterfaces );
        for ( const auto& hInterface : vecInterfaces )
            in_visit( strBoard + "." + number( hInterface->getId() ), *hInterface );
    }
}

template <class TKind>
void describeBoards( std::ostream& out_stream, const Config& in_config ) {
    visitBoards<TKind>( in_config, [&]( const std::string& in_strWhere, const auto& in_one ) {
        const Lines lines( out_stream, in_strWhere );
        if constexpr ( std::is_base_of_v<BoardConfig, std::decay_t<decltype( in_one )>> ) {
            lines( "displayName", in_one.getDisplayName() )( "model", in_one.getModel() );
            lines( "pciSlot", in_one.getPCISlot() )( "pciBus", in_one.getPCIBus() );
        } else {
            lines( "shortId", in_one.getUniqueId( true ) )( "longId", in_one.getUniqueId( false ) );
        }
        describe( lines, in_one );
    } );
}

// ---- Physical configurations

void describe( const Lines& in_lines, const HardwareEchoCancellationConfig& in_echo ) {
    in_lines( "mode", in_echo.getMode() )( "comfortNoiseMode", in_echo.getComfortNoiseMode() );
    in_lines( "tailDisplacement", in_echo.getTailDisplacement() );
    in_lines( "doubleTalkBehavior", in_echo.getDoubleTalkBehavior() );
}

void describe( const Lines& in_lines, const HardwareAcousticEchoCancellationConfig& in_echo ) {
    in_lines( "mode", in_echo.getMode() );
}

void describe( const Lines& in_lines, const HardwareLevelControlConfig& in_level ) {
    in_lines( "mode", in_level.getMode() )( "direction", in_level.getDirection() );
    in_lines( "gain", in_level.getGain() )( "targetLevel", in_level.getTargetLevel() );
}

void describe( const Lines& in_lines, const HardwareBackgroundNoiseAttenuationConfig& in_noise ) {
    in_lines( "mode", in_noise.getMode() )( "direction", in_noise.getDirection() );
    in_lines( "attenuation", in_noise.getAttenuation() );
}

void describe( const Lines& in_lines, const HardwareDtmfRemovalConfig& in_dtmf ) {
    in_lines( "mode", in_dtmf.getMode() )( "direction", in_dtmf.getDirection() );
}

void describe( const Lines& in_lines, const AudioConfig& in_audio ) {
    in_lines( "mediaFormat", in_audio.getMediaFormat().getType() )( "toneSetName", in_audio.getToneSetName() );
    if ( const auto* const pAudio = dynamic_cast<const TirvanaAudioConfig*>( &in_audio ) )
        in_lines( "voicePacketLength", pAudio->getVoicePacketLength() );
    in_lines.part<HardwareEchoCancellationConfig>( "echo", in_audio.getEchoCancellationConfig() );
    in_lines.part<HardwareAcousticEchoCancellationConfig>( "acousticEcho",
                                                           in_audio.getAcousticEchoCancellationConfig() );
    in_lines.part<HardwareLevelControlConfig>( "level", in_audio.getLevelControlConfig() );
    in_lines.part<HardwareBackgroundNoiseAttenuationConfig>( "noise", in_audio.getBackgroundNoiseAttenuationConfig() );
    in_lines.part<HardwareDtmfRemovalConfig>( "dtmf", in_audio.getDtmfRemovalConfig() );
}

void describe( const Lines& in_lines, const DChannelConfig& in_channel ) {
    in_lines( "index", in_channel.getDChannelIndex() )( "mtuSize", in_channel.getMtuSize() );
    in_lines( "pcapRecorder", in_channel.isPcapRecorderEnabled() )( "pcapPathName", in_channel.getPcapPathName() );
}

void describe( const Lines& in_lines, const DigitalInterfacePhysicalConfig& in_physical ) {
    in_lines( "mediaType", in_physical.getMediaType() )( "framing", in_physical.getFraming() );
    in_lines( "lineEncoding", in_physical.getLineEncoding() )( "clocking", in_physical.getClockingMode() );
    in_lines( "loopback", in_physical.getLoopbackMode() )( "rxSensitivity", in_physical.getRxSensitivity() );
    in_lines( "highImpedance", in_physical.isHighImpedanceEnable() );
    if ( in_physical.getMediaType() == DigitalInterfacePhysicalConfig::MediaType::E1 )
        in_lines( "E1Signaling", in_physical.getE1Signaling() )( "E1Termination", in_physical.getE1Termination() );
    else
        in_lines( "LBO", in_physical.getLBOMode() );
    in_lines.part<DChannelConfig>( "DChannel", in_physical.getDChannelConfig() );
}

void describe( const Lines& in_lines, const AnalogInterfacePhysicalConfig& in_physical ) {
    in_lines( "variant", in_physical.getVariantType() );
    if ( const auto* const pPhysical = dynamic_cast<const TirvanaAnalogInterfacePhysicalConfig*>( &in_physical ) ) {
        in_lines( "clocking", pPhysical->getClocking() );
        in_lines( "fxoRxGain", pPhysical->getFxoRxGain() )( "fxoTxGain", pPhysical->getFxoTxGain() );
        in_lines( "fxsRxGain", pPhysical->getFxsRxGain() )( "fxsTxGain", pPhysical->getFxsTxGain() );
        in_lines( "fxoBatteryDebounce", pPhysical->getFxoBatteryDebounce() );
        in_lines( "fxoBatteryThreshold", pPhysical->getFxoBatteryThreshold() );
    }
    for ( const auto& pInterface : in_physical.getApplyToAnalogInterfaces() )
        in_lines( "appliedTo", pInterface->getUniqueId( true ) );
}

/// A configuration that is applied to several interfaces is described with the first.
template <class TKind>
void describePhysicals( std::ostream& out_stream, const Config& in_config ) {
    std::set<const void*> setDescribed;
    visitBoards<TKind>( in_config, [&]( const std::string& in_strWhere, const auto& in_one ) {
        if constexpr ( !std::is_base_of_v<BoardConfig, std::decay_t<decltype( in_one )>> ) {
            const auto hPhysical = in_one.getPhysicalConfig();
            if ( hPhysical.isNull() ) {
                Lines( out_stream, in_strWhere ).none( "physical" );
                return;
            }
            Lines( out_stream, in_strWhere )( "physical", hPhysical->getId() );
            if ( !setDescribed.insert( hPhysical.get() ).second )
                return;
            const Lines lines( out_stream, TKind::NAME + ( " physical " + number( hPhysical->getId() ) ) );
            lines( "displayName", hPhysical->getDisplayName() );
            describe( lines, *hPhysical );
            lines.part<AudioConfig>( "audio", hPhysical->getAudioConfig() );
        }
    } );
}

// ---- Call control

/// The name of what a range refers to among the configurations of its kind.
template <class TConfigs, class THandle>
void describeReference( const Lines& in_lines, const char* in_szName, const TConfigs& in_configs,
                        const THandle& in_hConfig ) {
    for ( const auto& [uId, hConfig] : in_configs ) {
        if ( !in_hConfig.isNull() &&
             static_cast<const void*>( hConfig.get() ) == dynamic_cast<const void*>( in_hConfig.get() ) )
            in_lines( in_szName, uId );
    }
}

void describe( const Lines& in_lines, const ChannelGroupConfig& in_group, const CallControlConfig& in_root ) {
    in_lines( "direction", in_group.getDirection() );
    in_lines( "outboundHuntingScheme", in_group.getOutboundHuntingScheme() );
    for ( const auto& hRange : in_group.getBChannelRangeConfig() ) {
        const Lines lines = in_lines.below( hRange->getInterfaceConfig()->getUniqueId( true ) );
        lines( "channels", number( hRange->getFirstChannel() ) + ".." + number( hRange->getLastChannel() ) );
        if ( const auto& hIsdn = in_root.getIsdnConfig(); !hIsdn.isNull() ) {
            describeReference( lines, "FAS", hIsdn->getFasConfigs(), hRange->getIsdnCommonConfig() );
            describeReference( lines, "NFAS", hIsdn->getNfasConfigs(), hRange->getIsdnCommonConfig() );
        }
        if ( const auto& hAnalog = in_root.getAnalogConfig(); !hAnalog.isNull() ) {
            describeReference( lines, "FXO", hAnalog->getFxoConfigs(), hRange->getFxoConfig() );
            describeReference( lines, "FXS", hAnalog->getFxsConfigs(), hRange->getFxsConfig() );
        }
    }
}

void describeCommon( const Lines& in_lines, const IsdnCommonConfig& in_isdn ) {
    in_lines( "termination", in_isdn.getTermination() )( "switchVariant", in_isdn.getSwitchVariant() );
    in_lines( "BChannelNegotiation", in_isdn.getBChannelNegociation() );
    in_lines( "initiateRestartProcedure", in_isdn.getInitiateRestartProcedure() );
    in_lines( "inbandProgressTonesGeneration", in_isdn.getInbandProgressTonesGeneration() );
    in_lines( "inbandProgressTonesIndicator", in_isdn.getInbandProgressTonesIndicator() );
    in_lines( "callerNameLocation", in_isdn.getCallerNameLocation() );
    in_lines( "facilityDelayMs", in_isdn.getFacilityDelayMs() );
}

void describe( const Lines& in_lines, const IsdnFasConfig& in_fas ) {
    describeCommon( in_lines, in_fas );
    for ( const auto& hInterface : in_fas.getApplyToDigitalInterfaces() )
        in_lines( "appliedTo", hInterface->getUniqueId( true ) );
}

void describe( const Lines& in_lines, const IsdnNfasConfig& in_nfas ) {
    describeCommon( in_lines, in_nfas );
    in_lines( "hasPrimaryDChannel", in_nfas.hasPrimaryDChannel() );
    for ( const auto& [strId, hMember] : in_nfas.getMemberInterfaces() ) {
        const Lines lines =
            in_lines.below( std::string( "member " ) + hMember->getInterfaceConfig()->getUniqueId( true ) );
        lines( "key", strId )( "nfasInterfaceID", hMember->getNfasInterfaceID() );
        lines( "DChannelMode", hMember->getDChannelMode() );
    }
}

void describe( const Lines& in_lines, const AnalogFxoConfig::InboundCallHandlingConfig& in_inbound ) {
    in_lines( "notifyCondition", in_inbound.getNotifyCondition() )( "notifyDelayMs", in_inbound.getNotifyDelayMs() );
    in_lines( "connectCondition", in_inbound.getConnectCondition() )( "callerIdType", in_inbound.getCallerIdType() );
    in_lines( "numberOfRings", in_inbound.getNumberOfRings() );
}

void describe( const Lines& in_lines, const AnalogFxoConfig::OutboundCallHandlingConfig& in_outbound ) {
    in_lines( "dialing", in_outbound.isDialingActive() )( "waitForDialTone", in_outbound.isWaitForDialToneEnabled() );
    in_lines( "preDialDelayMs", in_outbound.getPreDialDelayMs() );
    in_lines( "interDigitDelayMs", in_outbound.getInterDigitDelayMs() );
    in_lines( "DTMFDigitDurationMs", in_outbound.getDTMFDigitDurationMs() );
    in_lines( "specialCharacter", in_outbound.getInternationalDialingSpecialCharacter() );
    in_lines( "substitute", in_outbound.getInternationalDialingSpecialCharacterSubstitute() );
    in_lines( "connectSupervision", in_outbound.getOutboundSideConnectSupervision() );
    in_lines( "connectCondition", in_outbound.getInboundSideConnectCondition() );
    in_lines( "connectDelayMs", in_outbound.getConnectDelayMs() );
    in_lines( "disconnectTimeoutMs", in_outbound.getDisconnectTimeoutMs() );
    in_lines( "connectOnNoRemoteRingTimeoutMs", in_outbound.getConnectOnNoRemoteRingTimeoutMs() );
}

void describe( const Lines& in_lines, const AnalogDisconnectSupervisionConfig& in_supervision ) {
    in_lines( "ringCadenceDetection", in_supervision.isRingCadenceDetectionEnabled() );
    in_lines( "ringCadenceOffDelayMs", in_supervision.getRingCadenceOffDelayMs() );
    for ( const auto& [strName, hDetector] : in_supervision.getDisconnectDetectorsMap() ) {
        const Lines lines = in_lines.below( "detector " + strName );
        lines( "name", hDetector->getName() );
        for ( const auto& [strFirst, strSecond] : hDetector->getSequence() )
            lines( "item", strFirst + "/" + strSecond );
    }
}

void describeCommon( const Lines& in_lines, const AppliedAnalogCallControlConfig& in_analog ) {
    in_lines( "displayName", in_analog.getDisplayName() )( "toneSetName", in_analog.getToneSetName() );
    for ( const auto& hInterface : in_analog.getApplyToAnalogInterfaces() )
        in_lines( "appliedTo", hInterface->getUniqueId( true ) );
}

void describe( const Lines& in_lines, const AnalogFxoConfig& in_fxo ) {
    describeCommon( in_lines, in_fxo );
    in_lines( "onHookMinimumDurationMs", in_fxo.getOnHookMinimumDurationMs() );
    in_lines.part<AnalogFxoConfig::InboundCallHandlingConfig>( "inbound", in_fxo.getInboundCallHandlingConfigHandle() );
    in_lines.part<AnalogFxoConfig::OutboundCallHandlingConfig>( "outbound",
                                                                in_fxo.getOutboundCallHandlingConfigHandle() );
    in_lines.part<AnalogDisconnectSupervisionConfig>( "supervision", in_fxo.getDisconnectSupervisonConfigHandle() );
}

void describe( const Lines& in_lines, const AnalogFxsConfig::InboundCallHandlingConfig& in_inbound ) {
    in_lines( "relayEarlyMedia", in_inbound.isRelayEarlyMediaEnabled() );
    in_lines( "minExpectedDigits", in_inbound.getMinExpectedDigits() );
    in_lines( "interDigitTimeoutMs", in_inbound.getInterDigitTimeoutMs() );
    in_lines( "busyToneDurationMs", in_inbound.getBusyToneDurationMs() );
    in_lines( "dialToneDurationMs", in_inbound.getDialToneDurationMs() );
}

void describe( const Lines& in_lines, const AnalogFxsConfig::HotlineDialingConfig& in_hotline ) {
    in_lines( "enabled", in_hotline.isEnabled() );
    in_lines( "delayBeforeDialingMs", in_hotline.getDelayBeforeDialingMs() );
    in_lines( "dialingNumber", in_hotline.getDialingNumber() );
}

void describe( const Lines& in_lines, const AnalogFxsConfig::DisconnectAnswerNotificationConfig& in_notification ) {
    in_lines( "mode", in_notification.getMode() );
    in_lines( "currentDisconnectDurationMs", in_notification.getCurrentDisconnectDurationMs() );
}

void describe( const Lines& in_lines, const AnalogFxsConfig& in_fxs ) {
    describeCommon( in_lines, in_fxs );
    in_lines( "regretTimeMs", in_fxs.getRegretTimeMs() )( "outOfService", in_fxs.getOutOfServiceBehavior() );
    in_lines.part<AnalogFxsConfig::InboundCallHandlingConfig>( "inbound", in_fxs.getInboundCallHandlingConfigHandle() );
    in_lines.part<AnalogFxsConfig::HotlineDialingConfig>( "hotline", in_fxs.getHotlineDialingConfigHandle() );
    in_lines.part<AnalogFxsConfig::DisconnectAnswerNotificationConfig>(
        "notification", in_fxs.getDisconnectAnswerNotificationConfig() );
}

template <class TConfigs>
void describeAll( std::ostream& out_stream, const std::string& in_strKind, const TConfigs& in_configs ) {
    for ( const auto& [uId, hConfig] : in_configs )
        describe( Lines( out_stream, in_strKind + " " + number( uId ) ), *hConfig );
}

void describeCallControl( std::ostream& out_stream, const CallControlConfig& in_root ) {
    for ( const auto& [strId, hGroup] : in_root.getChannelGroupsConfig() )
        describe( Lines( out_stream, "group " + strId ), *hGroup, in_root );
    const Lines lines( out_stream, "call control" );
    if ( const auto& hIsdn = in_root.getIsdnConfig(); hIsdn.isNull() ) {
        lines.none( "ISDN" );
    } else {
        describeAll( out_stream, "NFAS", hIsdn->getNfasConfigs() );
        describeAll( out_stream, "FAS", hIsdn->getFasConfigs() );
    }
    if ( const auto& hAnalog = in_root.getAnalogConfig(); hAnalog.isNull() ) {
        lines.none( "analog" );
    } else {
        describeAll( out_stream, "FXO", hAnalog->getFxoConfigs() );
        describeAll( out_stream, "FXS", hAnalog->getFxsConfigs() );
    }
}

} // namespace

std::string describeBoards( const Config& in_config ) {
    std::ostringstream stream;
    describeBoards<AnalogKind>( stream, in_config );
    describeBoards<DigitalKind>( stream, in_config );
    return stream.str();
}

std::string describeModel( const Config& in_config ) {
    std::ostringstream stream;
    for ( const auto& [strId, hProvider] : in_config.getProvidersConfig() )
        describe( Lines( stream, "provider " + strId ), *hProvider );
    stream << describeBoards( in_config );
    describePhysicals<AnalogKind>( stream, in_config );
    describePhysicals<DigitalKind>( stream, in_config );
    if ( const auto hCallControl = in_config.getCallControlConfig(); !hCallControl.isNull() )
        describeCallControl( stream, *hCallControl );
    return stream.str();
}

} // namespace Velquin::Pstn

#include "Describing.h"

namespace Velquin::Pstn {

Json describe( const HardwareEchoCancellationConfig& in_echo ) {
    return Json::object( {
        { "mode", keyword( Keywords::ECHO_CANCELLATION_MODE, in_echo.getMode() ) },
        { "comfortNoiseMode", keyword( Keywords::COMFORT_NOISE_MODE, in_echo.getComfortNoiseMode() ) },
        { "tailDisplacementInMs", in_echo.getTailDisplacement() },
        { "doubleTalkBehavior", keyword( Keywords::DOUBLE_TALK_BEHAVIOR, in_echo.getDoubleTalkBehavior() ) },
    } );
}

Json describe( const HardwareAcousticEchoCancellationConfig& in_echo ) {
    return Json::object( { { "mode", keyword( Keywords::ACOUSTIC_ECHO_CANCELLATION_MODE, in_echo.getMode() ) } } );
}

Json describe( const HardwareLevelControlConfig& in_level ) {
    return Json::object( {
        { "mode", keyword( Keywords::LEVEL_CONTROL_MODE, in_level.getMode() ) },
        { "direction", keyword( Keywords::VOICE_DIRECTION, in_level.getDirection() ) },
        { "gainIndB", in_level.getGain() },
        { "targetLevelIndBM0", in_level.getTargetLevel() },
    } );
}

Json describe( const HardwareBackgroundNoiseAttenuationConfig& in_noise ) {
    return Json::object( {
        { "mode", keyword( Keywords::BACKGROUND_NOISE_ATTENUATION_MODE, in_noise.getMode() ) },
        { "direction", keyword( Keywords::VOICE_DIRECTION, in_noise.getDirection() ) },
        { "attenuationIndB", in_noise.getAttenuation() },
    } );
}

Json describe( const HardwareDtmfRemovalConfig& in_dtmf ) {
    return Json::object( {
        { "mode", keyword( Keywords::DTMF_REMOVAL_MODE, in_dtmf.getMode() ) },
        { "direction", keyword( Keywords::VOICE_DIRECTION, in_dtmf.getDirection() ) },
    } );
}

Json describe( const TirvanaAudioConfig& in_audio ) {
    return Json::object( {
        { "defaultPcmLaw", keyword( Keywords::PCM_LAW, in_audio.getMediaFormat().getType() ) },
        { "toneSetName", in_audio.getToneSetName() },
        { "voicePacketLengthInMs", in_audio.getVoicePacketLength() },
        { "EchoCancellation", describePart<HardwareEchoCancellationConfig>( in_audio.getEchoCancellationConfig() ) },
        { "AcousticEchoCancellation",
          describePart<HardwareAcousticEchoCancellationConfig>( in_audio.getAcousticEchoCancellationConfig() ) },
        { "LevelControl", describePart<HardwareLevelControlConfig>( in_audio.getLevelControlConfig() ) },
        { "BackgroundNoiseAttenuation",
          describePart<HardwareBackgroundNoiseAttenuationConfig>( in_audio.getBackgroundNoiseAttenuationConfig() ) },
        { "DTMFRemoval", describePart<HardwareDtmfRemovalConfig>( in_audio.getDtmfRemovalConfig() ) },
    } );
}

Json describe( const DChannelConfig& in_channel ) {
    return Json::object( {
        { "channelIndex", in_channel.getDChannelIndex() },
        { "mtuSize", in_channel.getMtuSize() },
        { "RecordToPcapFile", keyword( Keywords::YES_NO, in_channel.isPcapRecorderEnabled() ) },
        { "PcapFilesFolder", in_channel.getPcapPathName() },
    } );
}

Json describe( const DigitalInterfacePhysicalConfig& in_physical ) {
    const bool bE1 = in_physical.getMediaType() == DigitalInterfacePhysicalConfig::MediaType::E1;
    return Json::object( {
        { "displayName", in_physical.getDisplayName() },
        { "mediaType", bE1 ? "E1" : "T1" },
        { "framing", keyword( Keywords::FRAMING, in_physical.getFraming() ) },
        { "lineEncoding", keyword( Keywords::LINE_ENCODING, in_physical.getLineEncoding() ) },
        { "clocking", keyword( Keywords::DIGITAL_CLOCKING, in_physical.getClockingMode() ) },
        { "loopbackMode", keyword( Keywords::LOOPBACK_MODE, in_physical.getLoopbackMode() ) },
        { "receiverSensitivity", keyword( Keywords::RECEIVER_SENSITIVITY, in_physical.getRxSensitivity() ) },
        { "highImpedance", keyword( Keywords::ENABLED_DISABLED, in_physical.isHighImpedanceEnable() ) },
        { "E1Signaling", keyword( Keywords::E1_SIGNALING, in_physical.getE1Signaling() ) },
        { "E1Termination", keyword( Keywords::E1_TERMINATION, in_physical.getE1Termination() ) },
        { "LBO", keyword( Keywords::LINE_BUILD_OUT, in_physical.getLBOMode() ) },
        { "DChannel", describePart<DChannelConfig>( in_physical.getDChannelConfig() ) },
        { "audio", describePart<TirvanaAudioConfig>( in_physical.getAudioConfig() ) },
    } );
}

Json describe( const TirvanaAnalogInterfacePhysicalConfig& in_physical ) {
    return Json::object( {
        { "displayName", in_physical.getDisplayName() },
        { "variant", keyword( Keywords::COUNTRY, in_physical.getVariantType() ) },
        { "clocking", keyword( Keywords::ANALOG_CLOCKING, in_physical.getClocking() ) },
        { "fxoRxGainIndB", in_physical.getFxoRxGain() },
        { "fxoTxGainIndB", in_physical.getFxoTxGain() },
        { "fxsRxGainIndB", in_physical.getFxsRxGain() },
        { "fxsTxGainIndB", in_physical.getFxsTxGain() },
        { "fxoBatteryDebounceInMs", in_physical.getFxoBatteryDebounce() },
        { "fxoBatteryThresholdInVolts", in_physical.getFxoBatteryThreshold() },
        { "audio", describePart<TirvanaAudioConfig>( in_physical.getAudioConfig() ) },
    } );
}

Json describePhysical( const DigitalInterfacePhysicalConfig& in_physical ) {
    Json settings = describe( in_physical );
    if ( in_physical.getMediaType() == DigitalInterfacePhysicalConfig::MediaType::E1 ) {
        settings.erase( "LBO" );
    } else {
        settings.erase( "E1Signaling" );
        settings.erase( "E1Termination" );
    }
    markDefaults( settings, describe( DigitalInterfacePhysicalConfig() ) );
    return settings;
}

Json describePhysical( const AnalogInterfacePhysicalConfig& in_physical ) {
    const auto* const pPhysical = dynamic_cast<const TirvanaAnalogInterfacePhysicalConfig*>( &in_physical );
    Json settings = pPhysical ? describeMarked( *pPhysical, TirvanaAnalogInterfacePhysicalConfig() ) : Json::object();
    append( settings, "appliedTo", listInterfaces( in_physical.getApplyToAnalogInterfaces() ) );
    return settings;
}

} // namespace Velquin::Pstn

#include <string_view>

#include "advice/AdviceTable.h"
#include "analog/AnalogCallControlConfig.h"
#include "callcontrol/isdn/IsdnFasConfig.h"
#include "callcontrol/isdn/IsdnNfasConfig.h"
#include "hardware/TirvanaProviderConfig.h"
#include "physical/TirvanaAnalogInterfacePhysicalConfig.h"
#include "physical/audio/HardwareBackgroundNoiseAttenuationConfig.h"
#include "physical/audio/HardwareEchoCancellationConfig.h"
#include "physical/audio/HardwareLevelControlConfig.h"
#include "physical/audio/TirvanaAudioConfig.h"

// Values that the format takes and no line does. Where a standard gives no figure, the range is generous: it is there
// to find slips of the keyboard and wrong units.

namespace Velquin::Pstn {

namespace {

/// The values that make sense for an attribute.
struct Limit {
    const char* szAttribute;
    double dLeast;
    double dMost;
    const char* szHint;
};

// PCI Local Bus Specification 3.0, 3.2.2.3: a configuration address has 8 bits for the bus, 5 for the device on it.
constexpr Limit PCI_BUS{ "pciBus", 0, 255, "PCI has the buses 0 to 255" };
constexpr Limit PCI_SLOT{ "pciSlot", 0, 31, "a PCI bus has the slots 0 to 31" };

// One process of the gateway serves its cards: more threads than processors of a large host only wait for each other.
constexpr Limit THREADS{ "count", 1, 256, "give 1 to 256 threads; without one, the channels are not served" };

// ITU-T Q.921, 5.9.3 (N201): 260 bytes of information, more only by agreement. Longer than a kilobyte is a figure meant
// for another network.
constexpr Limit MTU{ "mtuSize", 260, 1024, "give 260, the length that ISDN has agreed on, or at most 1024" };

// ITU-T G.114: a delay of more than 150 ms disturbs a conversation; such a packet takes all of it.
constexpr Limit VOICE_PACKET{ "voicePacketLengthInMs", 1, 150, "give 1 to 150 ms; 20 is usual" };

// ITU-T G.168 cancels what returns within 128 ms; ITU-T G.114 lets a connection delay speech by 400 ms each way.
constexpr Limit TAIL{ "tailDisplacementInMs", 0, 800, "an echo returns within 800 ms at most; 0 is usual" };

// Speech is at about -15 dBm0 (ITU-T G.223), with peaks some 12 dB above, and ITU-T G.711 ends at 3.14 dBm0. In the
// other direction, a connection is best at a loudness rating of 8 to 12 dB, and hard to hear with 12 dB more (ITU-T
// G.111).
constexpr double MOST_GAIN = 12;
constexpr const char* GAIN_HINT = "give -12 to 12 dB; more overloads the line, less can't be heard";
constexpr Limit GAIN{ "gainIndB", -MOST_GAIN, MOST_GAIN, GAIN_HINT };

// The peaks of speech are some 12 dB above its level: -9 dBm0 reaches the end of ITU-T G.711. Below -30 dBm0, speech is
// 15 dB under its usual level (ITU-T G.223).
constexpr Limit TARGET_LEVEL{ "targetLevelIndBM0", -30, -9, "give -30 to -9 dBm0; -20 to -15 is usual" };

// No standard gives a figure. Noise that is 30 dB softer is not heard behind speech.
constexpr Limit NOISE{ "attenuationIndB", 1, 30, "give 1 to 30 dB; 0 and less attenuate nothing" };

// Half a second is as long as the interruption by which many exchanges say that the far end hung up.
constexpr Limit BATTERY_DEBOUNCE{ "fxoBatteryDebounceInMs", 1, 500, "give 1 to 500 ms; 64 is usual" };
// A line has 48 V on-hook, and often less than 10 V off-hook: 20 V would read every call as a lost battery.
constexpr Limit BATTERY_THRESHOLD{ "fxoBatteryThresholdInVolts", 1, 20, "give 1 to 20 V; 3 is usual" };

// A wait of 0 takes the line again before the exchange noticed that it was released.
constexpr Limit ON_HOOK{ "minimumOnHookDurationMs", 1, 60000, "give the exchange time, 800 ms are usual" };
// Ringing repeats at least every 6 s (ITU-T E.180: at most 1.5 s on and 5 s off); 30 rings are 3 minutes, after which
// an exchange gives up (ITU-T Q.931, T301).
constexpr Limit RINGS{ "numberOfRings", 1, 30, "give 1 to 30 rings" };
// ITU-T Q.24: receivers take digits and pauses of 40 ms or longer. A second for each is a slip.
constexpr Limit DIGIT{ "DTMFDigitDurationInMs", 40, 1000, "give 40 to 1000 ms; exchanges miss shorter digits" };
constexpr Limit PAUSE{ "interDigitDelayInMs", 40, 1000, "give 40 to 1000 ms; exchanges miss shorter pauses" };
// ITU-T Q.931, T301: a network lets a telephone ring for 3 minutes at least. A line that waits for 10 is a slip.
constexpr Limit DISCONNECT{ "disconnectTimeoutMs", 1000, 600000,
                            "give the far end 1000 to 600000 ms to answer; 60000 is usual" };
// ITU-T E.180: the silence between two rings lasts up to 5 s. After a minute of it, nothing rings any more.
constexpr Limit NO_REMOTE_RING{ "connectOnNoRemoteRingTimeoutMs", 5000, 60000,
                                "give 5000 to 60000 ms: the silence between two rings lasts 5000" };
constexpr Limit RING_OFF{ "ringCadenceOffDelayMs", 5000, 60000,
                          "give 5000 to 60000 ms: the silence between two rings lasts 5000" };

constexpr std::string_view KEYS = "0123456789*#";
// People dial a digit within a second or two; ITU-T Q.931 waits 10 to 15 s for the next one (T302).
constexpr Limit INTER_DIGIT{ "interDigitTimeoutMs", 1000, 60000, "give people 1000 to 60000 ms; 5000 is usual" };
// ITU-T E.164: a number has 15 digits at most.
constexpr Limit DIGITS{ "minExpectedDigits", 0, 15, "no number has more than 15 digits" };
// No standard gives a figure. A telephone that was left off-hook for 2 minutes won't dial.
constexpr Limit DIAL_TONE{ "dialToneDurationMs", 1, 120000, "give a dial tone of 1 to 120000 ms; 15000 is usual" };
// An interruption that a telephone takes for a hang-up, not for a disturbance, and that ends.
constexpr Limit CURRENT_DISCONNECT{ "currentDisconnectDurationMs", 100, 5000, "give 100 to 5000 ms; 750 is usual" };

// ITU-T Q.931, T303: a SETUP message that nobody answers within 4 s is repeated, and then given up.
constexpr Limit FACILITY{ "waitFacilityDelayMs", 1, 4000, "wait 1 to 4000 ms; the network gives up after 4 s" };
// ITU-T Q.931, 4.5.13: the interface identifier has 7 bits.
constexpr Limit NFAS_INTERFACE{ "nfasInterfaceID", 0, 127, "the signalling can name the interfaces 0 to 127 only" };

/// Says so when a value is beyond its limits.
/// @param in_getPlace yields the place of the element; it is asked only then
template <class GetPlace>
void check( const Limit& in_limit, double in_dValue, AdviceReport& inout_report, GetPlace in_getPlace ) {
    if ( in_dValue < in_limit.dLeast || in_dValue > in_limit.dMost )
        inout_report.add( { in_getPlace().attribute( in_limit.szAttribute ), "", in_limit.szHint } );
}

void checkProviders( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const auto& [strId, hProvider] : in_subject.config.getProvidersConfig() ) {
        const auto* const pProvider = dynamic_cast<const TirvanaProviderConfig*>( hProvider.get() );
        if ( !pProvider )
            continue;
        const auto checkThreads = [&]( const TirvanaThreadGroupConfig& in_threads, const char* in_szElement ) {
            check( THREADS, in_threads.getThreadCount(), inout_report,
                   [&] { return AdvicePlace{ { ModelLocator::Key( pProvider->getId() ) } }.below( in_szElement ); } );
        };
        checkThreads( pProvider->getBChannelsThreadsConfig(), "BChannelsThreads" );
        checkThreads( pProvider->getDChannelsThreadsConfig(), "DChannelsThreads" );
    }
}

void checkBoards( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Board& board : in_subject.vecBoards ) {
        const auto checkWhere = [&]( const Limit& in_limit, const Fallible<unsigned long long>& in_where ) {
            if ( in_where.isSet() )
                check( in_limit, static_cast<double>( in_where.get() ), inout_report,
                       [&] { return placeOf( board ); } );
        };
        checkWhere( PCI_BUS, board.pBoard->getPCIBus() );
        checkWhere( PCI_SLOT, board.pBoard->getPCISlot() );
    }
}

template <class GetPlace>
void checkAudio( const AudioConfig* in_pAudio, AdviceReport& inout_report, GetPlace in_getPlace ) {
    if ( !in_pAudio )
        return;
    const auto below = [&]( const char* in_szBelow ) { return [=] { return in_getPlace().below( in_szBelow ); }; };
    if ( const auto* const p = dynamic_cast<const TirvanaAudioConfig*>( in_pAudio ) )
        check( VOICE_PACKET, static_cast<double>( p->getVoicePacketLength() ), inout_report, below( "audio" ) );
    using Echo = HardwareEchoCancellationConfig;
    if ( const auto* const p = dynamic_cast<const Echo*>( in_pAudio->getEchoCancellationConfig().get() );
         p && p->getMode() != Echo::Mode::DISABLED )
        check( TAIL, p->getTailDisplacement(), inout_report, below( "audio/EchoCancellation" ) );
    using Level = HardwareLevelControlConfig;
    if ( const auto* const p = dynamic_cast<const Level*>( in_pAudio->getLevelControlConfig().get() ) ) {
        if ( p->getMode() == Level::Mode::MANUAL )
            check( GAIN, p->getGain(), inout_report, below( "audio/LevelControl" ) );
        if ( p->getMode() == Level::Mode::AUTOMATIC )
            check( TARGET_LEVEL, p->getTargetLevel(), inout_report, below( "audio/LevelControl" ) );
    }
    using Noise = HardwareBackgroundNoiseAttenuationConfig;
    if ( const auto* const p = dynamic_cast<const Noise*>( in_pAudio->getBackgroundNoiseAttenuationConfig().get() );
         p && p->getMode() == Noise::Mode::ENABLED )
        check( NOISE, p->getAttenuation(), inout_report, below( "audio/BackgroundNoiseAttenuation" ) );
}

void checkPhysicals( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const auto& physical : in_subject.vecDigitalPhysicals ) {
        const auto getPlace = [&] { return placeOf( physical ); };
        checkAudio( physical.pConfig->getAudioConfig().get(), inout_report, getPlace );
        if ( physical.pConfig->hasDChannel() )
            check( MTU, physical.pConfig->getDChannelConfig()->getMtuSize(), inout_report,
                   [&] { return getPlace().below( "digital*/DChannel*" ); } );
    }
    for ( const auto& physical : in_subject.vecAnalogPhysicals ) {
        const auto getPlace = [&] { return placeOf( physical ); };
        checkAudio( physical.pConfig->getAudioConfig().get(), inout_report, getPlace );
        const auto* const p = dynamic_cast<const TirvanaAnalogInterfacePhysicalConfig*>( physical.pConfig );
        if ( !p )
            continue;
        const auto checkLine = [&]( const Limit& in_limit, double in_dValue ) {
            check( in_limit, in_dValue, inout_report, [&] { return getPlace().below( "analog" ); } );
        };
        const auto checkGain = [&]( const char* in_szAttribute, double in_dGain ) {
            checkLine( { in_szAttribute, -MOST_GAIN, MOST_GAIN, GAIN_HINT }, in_dGain );
        };
        checkGain( "fxoRxGainIndB", p->getFxoRxGain() );
        checkGain( "fxoTxGainIndB", p->getFxoTxGain() );
        checkGain( "fxsRxGainIndB", p->getFxsRxGain() );
        checkGain( "fxsTxGainIndB", p->getFxsTxGain() );
        checkLine( BATTERY_DEBOUNCE, p->getFxoBatteryDebounce() );
        checkLine( BATTERY_THRESHOLD, p->getFxoBatteryThreshold() );
    }
}

void checkIsdn( const IsdnConfig& in_isdn, AdviceReport& inout_report ) {
    const auto checkGroup = [&]( const IsdnCommonConfig& in_group, const IsdnNfasGroupMemberConfig* in_pMember ) {
        if ( in_group.getCallerNameLocation() == IsdnCommonConfig::CallerNameLocationType::IN_FACILITY_MSG )
            check( FACILITY, in_group.getFacilityDelayMs(), inout_report, [&] {
                return placeOf( AdviceSubject::IsdnUse{ &in_group, in_pMember } );
            } );
    };
    for ( const auto& [uId, hFas] : in_isdn.getFasConfigs() )
        checkGroup( *hFas, nullptr );
    const auto checkMember = [&]( const IsdnNfasConfig& in_group, const IsdnNfasGroupMemberConfig& in_member ) {
        if ( !in_member.getInterfaceConfig().isNull() )
            check( NFAS_INTERFACE, static_cast<double>( in_member.getNfasInterfaceID() ), inout_report, [&] {
                return placeOf( AdviceSubject::IsdnUse{ &in_group, &in_member }, *in_member.getInterfaceConfig() );
            } );
    };
    for ( const auto& [uId, hNfas] : in_isdn.getNfasConfigs() ) {
        const auto& members = hNfas->getMemberInterfaces();
        if ( !members.empty() )
            checkGroup( *hNfas, members.begin()->second.get() );
        for ( const auto& [strInterface, hMember] : members )
            checkMember( *hNfas, *hMember );
    }
}

void checkFxo( const AnalogFxoConfig& in_config, AdviceReport& inout_report ) {
    const auto checkIn = [&]( const Limit& in_limit, double in_dValue, const char* in_szBelow ) {
        check( in_limit, in_dValue, inout_report, [&] {
            return placeOf( AdviceSubject::AnalogUse{ &in_config, false } ).below( in_szBelow );
        } );
    };
    checkIn( ON_HOOK, in_config.getOnHookMinimumDurationMs(), "" );
    using Inbound = AnalogFxoConfig::InboundCallHandlingConfig;
    if ( const Inbound* const p = in_config.getInboundCallHandlingConfigHandle().get();
         p && p->getNotifyCondition() == Inbound::NotifyCondition::AFTER_N_RING )
        checkIn( RINGS, p->getNumberOfRings(), "inboundCallHandling/notifyOutboundSide" );
    using Outbound = AnalogFxoConfig::OutboundCallHandlingConfig;
    if ( const Outbound* const p = in_config.getOutboundCallHandlingConfigHandle().get() ) {
        constexpr const char* DIAL = "outboundCallHandling/dial";
        constexpr const char* CONNECT = "outboundCallHandling/connectSupervision/connectOutboundSide";
        if ( p->isDialingActive() ) {
            checkIn( DIGIT, p->getDTMFDigitDurationMs(), DIAL );
            checkIn( PAUSE, p->getInterDigitDelayMs(), DIAL );
        }
        if ( p->getOutboundSideConnectSupervision() != Outbound::ConnectSupervision::AFTER_DIALING_DESTINATION_NUMBER )
            checkIn( DISCONNECT, p->getDisconnectTimeoutMs(), CONNECT );
        if ( p->getOutboundSideConnectSupervision() == Outbound::ConnectSupervision::ON_REMOTE_RING_STOPPED )
            checkIn( NO_REMOTE_RING, p->getConnectOnNoRemoteRingTimeoutMs(), CONNECT );
    }
    const AnalogDisconnectSupervisionConfig* const pSupervision = in_config.getDisconnectSupervisonConfigHandle().get();
    if ( pSupervision && pSupervision->isRingCadenceDetectionEnabled() )
        checkIn( RING_OFF, pSupervision->getRingCadenceOffDelayMs(),
                 "disconnectSupervision/disconnectDetectors/ringCadenceDetector" );
}

void checkFxs( const AnalogFxsConfig& in_config, AdviceReport& inout_report ) {
    const auto getPlace = [&]( const char* in_szBelow ) {
        return [&in_config, in_szBelow] {
            return placeOf( AdviceSubject::AnalogUse{ &in_config, true } ).below( in_szBelow );
        };
    };
    const AnalogFxsConfig::HotlineDialingConfig* const pHotline = in_config.getHotlineDialingConfigHandle().get();
    const bool bHotline = pHotline && pHotline->isEnabled();
    if ( bHotline && std::string_view( pHotline->getDialingNumber() ).find_first_of( KEYS ) == std::string_view::npos )
        inout_report.add( { getPlace( "hotlineDialing" )().attribute( "dialingNumber" ), "",
                            "give the number that the telephone dials by itself" } );
    if ( const auto* const p = in_config.getInboundCallHandlingConfigHandle().get() ) {
        check( INTER_DIGIT, p->getInterDigitTimeoutMs(), inout_report, getPlace( "inboundCallHandling" ) );
        check( DIGITS, p->getMinExpectedDigits(), inout_report, getPlace( "inboundCallHandling" ) );
        if ( !bHotline ) // which plays none
            check( DIAL_TONE, p->getDialToneDurationMs(), inout_report, getPlace( "inboundCallHandling" ) );
    }
    using Notification = AnalogFxsConfig::DisconnectAnswerNotificationConfig;
    if ( const Notification* const p = in_config.getDisconnectAnswerNotificationConfig().get();
         p && p->getMode() == Notification::Mode::CURRENT_DISCONNECT )
        check( CURRENT_DISCONNECT, p->getCurrentDisconnectDurationMs(), inout_report,
               getPlace( "disconnectAnswerNotification" ) );
}

} // namespace

void adviseValueOutOfCustom( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    checkProviders( in_subject, inout_report );
    checkBoards( in_subject, inout_report );
    checkPhysicals( in_subject, inout_report );
    if ( in_subject.hCallControl.isNull() )
        return;
    if ( !in_subject.hCallControl->getIsdnConfig().isNull() )
        checkIsdn( *in_subject.hCallControl->getIsdnConfig(), inout_report );
    if ( in_subject.hCallControl->getAnalogConfig().isNull() )
        return;
    for ( const auto& [uId, hConfig] : in_subject.hCallControl->getAnalogConfig()->getFxoConfigs() )
        checkFxo( *hConfig, inout_report );
    for ( const auto& [uId, hConfig] : in_subject.hCallControl->getAnalogConfig()->getFxsConfigs() )
        checkFxs( *hConfig, inout_report );
}

} // namespace Velquin::Pstn

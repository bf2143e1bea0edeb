#include <velquin/GlobalConfig.h>

#include "LogCapture.h"
#include "ReaderTest.h"
#include "physical/AnalogInterfacePhysicalConfigXmlSerializer.h"
#include "physical/CountryMap.h"
#include "physical/DChannelConfigXmlSerializer.h"
#include "physical/TirvanaAnalogInterfacePhysicalConfig.h"
#include "physical/TirvanaAnalogInterfacePhysicalConfigXmlSerializer.h"
#include "physical/TirvanaDigitalInterfacePhysicalConfig.h"
#include "physical/TirvanaDigitalInterfacePhysicalConfigXmlSerializer.h"
#include "physical/audio/HardwareAcousticEchoCancellationConfigXmlSerializer.h"
#include "physical/audio/HardwareBackgroundNoiseAttenuationConfigXmlSerializer.h"
#include "physical/audio/HardwareDtmfRemovalConfigXmlSerializer.h"
#include "physical/audio/HardwareEchoCancellationConfigXmlSerializer.h"
#include "physical/audio/HardwareLevelControlConfigXmlSerializer.h"
#include "physical/audio/TirvanaAudioConfig.h"
#include "physical/audio/TirvanaAudioConfigXmlSerializer.h"

// Physical configurations, D-channels and the voice processing: what their readers refuse, and what they keep.

namespace Velquin::Pstn::Test {

namespace {

/// The root of the complete document, in which the first physical configuration is applied to nothing.
Element getUnapplied() {
    return Element( TestDocument()
                        .edit( std::vector<Edit>{ { R"(<interfaceRef boardID="1" interfaceID="1"/>)", "" },
                                                  { R"(<interfaceRef boardID="1" interfaceID="2"/>)", "" },
                                                  { R"(<interfaceRef boardID="3"/>)", "" } } )
                        .getText() );
}
constexpr const char* DIGITAL_CONFIG = "tirvanaDigitalConfig";
constexpr const char* ANALOG_CONFIG = "tirvanaAnalogConfig";
xmlNode* findPhysical( const Element& in_root, const char* in_szName = DIGITAL_CONFIG ) {
    return XML::findFirstElement( XML::findFirstElement( in_root.get(), "physicalInterfaceConfigs" ), in_szName );
}

/// Serializers that make objects of another class, or none.
template <class TXmlSerializer, class TConfig>
class WrongPhysicalXmlSerializer : public TXmlSerializer {
    InterfacePhysicalConfig* newInterfacePhysicalConfig() override {
        return makeSome<InterfacePhysicalConfig, TConfig>();
    }
};
class NoAudioReader : public TirvanaDigitalInterfacePhysicalConfigXmlSerializer {
    AudioConfigXmlSerializer* newAudioConfigXmlSerializer() override { return nullptr; }
};
template <class TXmlSerializer, class TConfig>
class WrongAudioXmlSerializer : public TXmlSerializer {
    AudioConfig* newAudioConfig() override { return makeSome<AudioConfig, TConfig>(); }
};
class NoDChannel : public DChannelConfigXmlSerializer {
    DChannelConfig* newDChannelConfig() override { return nullptr; }
};

class NoEcho : public HardwareEchoCancellationConfigXmlSerializer {
    EchoCancellationConfig* newConfig() override { return nullptr; }
};

template <class TXmlSerializer, class TConfig>
CallCase wrongPhysical( const std::string& in_strExpression, const char* in_szElement ) {
    return misused<TXmlSerializer>( in_strExpression, [in_szElement] {
        XmlConfig config;
        const Element root = getUnapplied();
        return WrongPhysicalXmlSerializer<TXmlSerializer, TConfig>()
            .read( findPhysical( root, in_szElement ), config )
            .isNull();
    } );
}

/// A case of a voice-processing reader that doesn't know what performs the block.
template <class TXmlSerializer>
CallCase noBlock( const std::string& in_strExpression ) {
    return misused<TXmlSerializer>( in_strExpression, [] {
        XmlConfig config;
        return !TXmlSerializer().read( nullptr, config );
    } );
}

const std::vector<CallCase> CALLS{
    { "PhysicalRefusesNull",
      [] {
          InterfacePhysicalConfig config;
          EXPECT_FALSE( config.setAudioConfig( nullptr ) || config.setDisplayName( nullptr ) );
          EXPECT_FALSE( DigitalInterfacePhysicalConfig().setDChannelConfig( nullptr ) );
          EXPECT_FALSE( AnalogInterfacePhysicalConfig().addApplyToAnalogInterface( nullptr ) );
      },
      { assertion( "!pAudioConfig.isNull()", "InterfacePhysicalConfig" ), assertion( "in_szText != nullptr", "Text" ),
        assertion( "!pDChannelConfig.isNull()", "DigitalInterfacePhysicalConfig" ),
        assertion( "!in_pAnalogInterface.isNull()", "AnalogInterfacePhysicalConfig" ) } },
    { "AudioRefusesNull",
      [] {
          AudioConfig config;
          EXPECT_FALSE(
              config.setEchoCancellationConfig( nullptr ) || config.setAcousticEchoCancellationConfig( nullptr ) ||
              config.setLevelControlConfig( nullptr ) || config.setBackgroundNoiseAttenuationConfig( nullptr ) ||
              config.setDtmfRemovalConfig( nullptr ) );
      },
      { assertion( "!pEchoCancellationConfig.isNull()", "AudioConfig" ),
        assertion( "!pAcousticEchoCancellationConfig.isNull()", "AudioConfig" ),
        assertion( "!pLevelControlConfig.isNull()", "AudioConfig" ),
        assertion( "!pBackgroundNoiseAttenuationConfig.isNull()", "AudioConfig" ),
        assertion( "!pDtmfRemovalConfig.isNull()", "AudioConfig" ) } },
    noBlock<EchoCancellationConfigXmlSerializer>( "!pEchoCancellationConfig.isNull()" ),
    noBlock<AcousticEchoCancellationConfigXmlSerializer>( "!pAcousticEchoCancellationConfig.isNull()" ),
    noBlock<LevelControlConfigXmlSerializer>( "!pLevelControlConfig.isNull()" ),
    noBlock<BackgroundNoiseAttenuationConfigXmlSerializer>( "!pBackgroundNoiseAttenuationConfig.isNull()" ),
    noBlock<DtmfRemovalConfigXmlSerializer>( "!pDtmfRemovalConfig.isNull()" ),
    wrongPhysical<InterfacePhysicalConfigXmlSerializer, void>( "!hInterfacePhysicalConfig.isNull()", DIGITAL_CONFIG ),
    wrongPhysical<DigitalInterfacePhysicalConfigXmlSerializer, AnalogInterfacePhysicalConfig>(
        "!hDigitalInterfacePhysicalConfig.isNull()", DIGITAL_CONFIG ),
    wrongPhysical<TirvanaDigitalInterfacePhysicalConfigXmlSerializer, DigitalInterfacePhysicalConfig>(
        "!hTirvanaDigitalInterfacePhysicalConfig.isNull()", DIGITAL_CONFIG ),
    wrongPhysical<AnalogInterfacePhysicalConfigXmlSerializer, DigitalInterfacePhysicalConfig>(
        "!hAnalogInterfacePhysicalConfig.isNull()", ANALOG_CONFIG ),
    wrongPhysical<TirvanaAnalogInterfacePhysicalConfigXmlSerializer, AnalogInterfacePhysicalConfig>(
        "!pTirvanaConfig.isNull()", ANALOG_CONFIG ),
    { "PhysicalSerializersWithoutClass",
      [] {
          XmlConfig config;
          const Element root = getUnapplied();
          xmlNode* const pElement = findPhysical( root );
          xmlNode* const pAudio = XML::findFirstElement( pElement, "audio" );
          EXPECT_TRUE( NoAudioReader().read( pElement, config ).isNull() );
          EXPECT_FALSE( ( WrongAudioXmlSerializer<AudioConfigXmlSerializer, void>().read( pAudio, config ) ) );
          EXPECT_FALSE(
              ( WrongAudioXmlSerializer<TirvanaAudioConfigXmlSerializer, AudioConfig>().read( pAudio, config ) ) );
          EXPECT_FALSE( NoDChannel().read( pElement, config ) || NoEcho().read( pElement, config ) );
      },
      { assertion( "!pAudioConfigXmlSerializer.isNull()", "InterfacePhysicalConfigXmlSerializer" ),
        assertion( "!pAudioConfig.isNull()", "AudioConfigXmlSerializer" ),
        assertion( "!pTirvanaAudioConfig.isNull()", "TirvanaAudioConfigXmlSerializer" ),
        assertion( "!pDChannelConfig.isNull()", "DChannelConfigXmlSerializer" ),
        assertion( "!pEchoCancellationConfig.isNull()", "EchoCancellationConfigXmlSerializer" ),
        assertion( "!pHardwareConfig.isNull()", "VoiceProcessingConfigXmlSerializer" ) } },
};

/// The numbers of a digital physical configuration, enumerated ones by their values: media type, framing, line
/// encoding, clocking, loopback, sensitivity, high impedance, E1 signalling and termination or LBO, D-channel.
std::string describe( const DigitalInterfacePhysicalConfig& in_config ) {
    std::ostringstream text;
    text << int( in_config.getMediaType() ) << int( in_config.getFraming() ) << int( in_config.getLineEncoding() )
         << int( in_config.getClockingMode() ) << int( in_config.getLoopbackMode() )
         << int( in_config.getRxSensitivity() ) << in_config.isHighImpedanceEnable();
    if ( in_config.getMediaType() == DigitalInterfacePhysicalConfig::MediaType::E1 )
        text << int( in_config.getE1Signaling() ) << int( in_config.getE1Termination() );
    else
        text << " LBO " << int( in_config.getLBOMode() );
    if ( in_config.hasDChannel() )
        text << " D " << in_config.getDChannelConfig()->getDChannelIndex() << ' '
             << in_config.getDChannelConfig()->getMtuSize() << ' '
             << in_config.getDChannelConfig()->isPcapRecorderEnabled() << ' '
             << in_config.getDChannelConfig()->getPcapPathName();
    return text.str();
}

/// The same of voice and its processing.
std::string describe( const AudioConfig& in_audio ) {
    const auto& echo = as<HardwareEchoCancellationConfig>( in_audio.getEchoCancellationConfig() );
    const auto& acousticEcho =
        as<HardwareAcousticEchoCancellationConfig>( in_audio.getAcousticEchoCancellationConfig() );
    const auto& level = as<HardwareLevelControlConfig>( in_audio.getLevelControlConfig() );
    const auto& noise = as<HardwareBackgroundNoiseAttenuationConfig>( in_audio.getBackgroundNoiseAttenuationConfig() );
    const auto& dtmf = as<HardwareDtmfRemovalConfig>( in_audio.getDtmfRemovalConfig() );
    std::ostringstream text;
    text << in_audio.getMediaFormat().getType() << ' ' << in_audio.getToneSetName() << ' '
         << dynamic_cast<const TirvanaAudioConfig&>( in_audio ).getVoicePacketLength() << ", " << int( echo.getMode() )
         << int( echo.getComfortNoiseMode() ) << ' ' << echo.getTailDisplacement() << ' '
         << int( echo.getDoubleTalkBehavior() ) << ", " << int( acousticEcho.getMode() ) << ", "
         << int( level.getMode() ) << int( level.getDirection() ) << ' ' << level.getGain() << ' '
         << level.getTargetLevel() << ", " << noise.isEnabled() << int( noise.getDirection() ) << ' '
         << noise.getAttenuation() << ", " << dtmf.isEnabled() << int( dtmf.getDirection() );
    return text.str();
}

} // namespace

PSTN_LOAD_CASES( PhysicalCases, readCases( "physical.cases" ) );
PSTN_CALL_CASES( PhysicalCalls, CALLS );

TEST( Physical, ConfigurationsHaveTheValuesOfTheFile ) {
    GlobalConfig::getInstance().setString( "marovane.Installation.Directory", "/opt/gateway" );
    XmlConfig config;
    loadValid( config, TestDocument() );
    GlobalConfig::getInstance().remove( "marovane.Installation.Directory" );
    const auto getConfig = [&config]( unsigned int in_uBoardId, unsigned int in_uId ) {
        return config.getDigitalInterfaceConfig( in_uBoardId, in_uId )->getPhysicalConfig();
    };
    EXPECT_EQ( describe( *getConfig( 1, 1 ) ), "1431151"
                                               "31 D 16 260 1 /tmp/pcap" );
    EXPECT_EQ( describe( *getConfig( 2, 1 ) ), "2122110 LBO 2 D 24 261 0 /opt/gateway/logs/DChannelPcapFiles/" );
    EXPECT_EQ( describe( *getConfig( 2, 3 ) ), "2311110 LBO 5" );
    EXPECT_EQ( getConfig( 1, 1 ).get(), getConfig( 3, 1 ).get() ) << "all interfaces of the virtual board";
    EXPECT_EQ( getConfig( 1, 1 )->getId(), 1U );
    EXPECT_STREQ( getConfig( 1, 1 )->getDisplayName(), "E1 with D-channel" );
    EXPECT_EQ( describe( *getConfig( 1, 1 )->getAudioConfig() ), "2 EUROPE 20, 11 5 1, 1, 11 -3 -12, 12 6, 13" );
    EXPECT_EQ( describe( *getConfig( 2, 1 )->getAudioConfig() ), "1 AMERICA 30, 32 0 3, 2, 33 0 0, 03 0, 01" );
    EXPECT_EQ( describe( *getConfig( 2, 3 )->getAudioConfig() ), "1 AMERICA 40, 21 0 2, 2, 22 0 -18, 01 0, 02" );
    const auto hAnalog = config.getAnalogInterfaceConfig( 2, 1 )->getPhysicalConfig();
    const auto& analog = as<TirvanaAnalogInterfacePhysicalConfig>( hAnalog );
    EXPECT_EQ( analog.getVariantType(), Country::TBR21 );
    EXPECT_EQ( analog.getClocking(), TirvanaAnalogInterfacePhysicalConfig::ClockingMode::EXTERNAL );
    EXPECT_EQ(
        ( std::vector{ analog.getFxoRxGain(), analog.getFxoTxGain(), analog.getFxsRxGain(), analog.getFxsTxGain() } ),
        ( std::vector{ -1.5, 2.0, 0.5, -3.0 } ) );
    EXPECT_EQ( analog.getFxoBatteryDebounce(), 48U );
    EXPECT_EQ( analog.getFxoBatteryThreshold(), 5U );
    ASSERT_EQ( analog.getApplyToAnalogInterfaces().size(), 3U );
    EXPECT_STREQ( analog.getApplyToAnalogInterfaces()[1]->getUniqueId( true ), "b1ai2" );
}

TEST( Physical, ReadersKeepDefaultsAndTakeWhatTheOtherLineHas ) {
    XmlConfig config;
    // CRC4, an E1's D-channel and E1's attributes on a T1, which goes before the digitalE1 in front of it.
    loadValid(
        config,
        TestDocument().edit(
            { { R"(receiverSensitivity="43dB" highImpedance="ENABLED" )", "" },
              { R"(<DChannelE1 channelIndex="16" mtuSize="260" RecordToPcapFile="YES")",
                R"(<DChannelE1 channelIndex="16 " mtuSize="260.5" RecordToPcapFile="NO")" },
              { R"(<digitalT1 framing="ESF")", R"(<digitalE1/><digitalT1 framing="CRC4" E1Signaling="x")" },
              { R"(<DChannelT1 channelIndex="24" mtuSize="261")",
                R"(<DChannelE1 channelIndex="24" mtuSize="261" PcapFilesFolder="")" },
              { R"(variant="TBR21" clocking="EXTERNAL" fxoRxGainIndB="-1.5" fxoTxGainIndB="2" fxsRxGainIndB="0.5")"
                R"( fxsTxGainIndB="-3" fxoBatteryDebounceInMs="48" fxoBatteryThresholdInVolts="5")",
                R"(variant="JAPAN" fxoTxGainIndB="1e1dB")" } } ),
        ANY_SCHEMA );
    EXPECT_EQ( describe( *config.getDigitalInterfaceConfig( 1, 1 )->getPhysicalConfig() ),
               "143111031 D 16 260 0 /tmp/pcap" );
    EXPECT_EQ( describe( *config.getDigitalInterfaceConfig( 2, 1 )->getPhysicalConfig() ),
               "2422110 LBO 2 D 24 261 0 " );
    const auto hAnalog = config.getAnalogInterfaceConfig( 2, 1 )->getPhysicalConfig();
    const auto& analog = as<TirvanaAnalogInterfacePhysicalConfig>( hAnalog );
    EXPECT_EQ( analog.getVariantType(), Country::JAPAN );
    EXPECT_EQ( analog.getClocking(), TirvanaAnalogInterfacePhysicalConfig::ClockingMode::INTERNAL );
    EXPECT_EQ( analog.getFxoRxGain(), 0 );
    EXPECT_EQ( analog.getFxoTxGain(), 10 );
    EXPECT_EQ( analog.getFxoBatteryDebounce(), TirvanaAnalogInterfacePhysicalConfig().getFxoBatteryDebounce() );
}

TEST( Physical, PlainReadersMakePlainAudio ) {
    XmlConfig config;
    const Element root = getUnapplied();
    WrongPhysicalXmlSerializer<DigitalInterfacePhysicalConfigXmlSerializer, DigitalInterfacePhysicalConfig>
        xmlSerializer;
    const auto hConfig = xmlSerializer.read( findPhysical( root ), config );
    ASSERT_FALSE( hConfig.isNull() );
    EXPECT_EQ( dynamic_cast<const TirvanaAudioConfig*>( hConfig->getAudioConfig().get() ), nullptr );
}

TEST( Physical, CountriesHaveOneNameEach ) {
    const CountryMap& countries = CountryMap::getInstance();
    EXPECT_EQ( countries.getType( "CANADA" ), Country::CANADA );
    EXPECT_EQ( countries.getType( "FRANCE" ), Country::FRANCE );
    for ( const char* const szName : { "Canada", "CANADA ", "", static_cast<const char*>( nullptr ) } )
        EXPECT_EQ( countries.getType( szName ), Country::INVALID );
    EXPECT_STREQ( countries.getName( Country::INVALID ), "" );
    for ( int n = Country::INVALID + 1; n <= Country::YEMEN; ++n )
        EXPECT_EQ( countries.getType( countries.getName( static_cast<Country::Type>( n ) ) ), n );
}

TEST( Physical, DChannelsTellOfTheirMakingAtTrace ) {
    const Velquin::Test::LogCapture log;
    const DChannelConfig config;
    ASSERT_EQ( log.getRecords().size(), 2U );
    EXPECT_EQ( log.getRecords()[0].strLogger, "marovane.pstn.config.DChannelConfig" );
    EXPECT_EQ( log.getRecords()[0].strMessage, "ENTER DChannelConfig::DChannelConfig" );
}

} // namespace Velquin::Pstn::Test

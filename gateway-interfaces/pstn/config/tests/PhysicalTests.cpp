#include "ConfigTest.h"
#include "Serializers.h"

// Physical configurations, D-channels and the voice processing: what their readers refuse, and what they keep.

namespace Velquin::Pstn::Test {

namespace {

/// The complete document, in which the first physical configuration is applied to nothing.
struct Unapplied {
    Element root{ TestDocument( { 3, { "/applyTo/interfaceRef", "-" } } ).getText() };
    xmlNode* pPhysicals = XML::findFirstElement( root.get(), "physicalInterfaceConfigs" );
    xmlNode* pDigital = XML::findFirstElement( pPhysicals, "tirvanaDigitalConfig" );
    xmlNode* pAnalog = XML::findFirstElement( pPhysicals, "tirvanaAnalogConfig" );
    XmlConfig config;
};

/// Reads with a serializer that makes objects of another class, or none.
template <class TXmlSerializer, class TMade>
void readPhysicalOfOtherClass( xmlNode* Unapplied::*in_pElement ) {
    struct Making : TXmlSerializer {
        InterfacePhysicalConfig* newInterfacePhysicalConfig() override { return makeSome<TMade>(); }
    };
    Unapplied document;
    EXPECT_TRUE( Making().read( document.*in_pElement, document.config ).isNull() );
}
template <class TXmlSerializer, class TMade>
struct MakingAudio : TXmlSerializer {
    AudioConfig* newAudioConfig() override { return makeSome<TMade>(); }
};
struct NoAudioReader : TirvanaDigitalInterfacePhysicalConfigXmlSerializer {
    AudioConfigXmlSerializer* newAudioConfigXmlSerializer() override { return nullptr; }
};
struct NoDChannel : DChannelConfigXmlSerializer {
    DChannelConfig* newDChannelConfig() override { return nullptr; }
};
struct NoEcho : HardwareEchoCancellationConfigXmlSerializer {
    EchoCancellationConfig* newConfig() override { return nullptr; }
};

template <class... TConfigs>
constexpr bool ARE_ABSTRACT = ( std::is_abstract_v<TConfigs> && ... );
static_assert( ARE_ABSTRACT<EchoCancellationConfig, AcousticEchoCancellationConfig, LevelControlConfig,
                            BackgroundNoiseAttenuationConfig, DtmfRemovalConfig> );

const std::vector<Case> CALLS{
    { "PhysicalRefusesNull",
      [] {
          InterfacePhysicalConfig config;
          EXPECT_FALSE( config.setAudioConfig( nullptr ) || config.setDisplayName( nullptr ) ||
                        DigitalInterfacePhysicalConfig().setDChannelConfig( nullptr ) ||
                        AnalogInterfacePhysicalConfig().addApplyToAnalogInterface( nullptr ) );
          AudioConfig audio;
          EXPECT_FALSE( audio.setEchoCancellationConfig( nullptr ) ||
                        audio.setAcousticEchoCancellationConfig( nullptr ) || audio.setLevelControlConfig( nullptr ) ||
                        audio.setBackgroundNoiseAttenuationConfig( nullptr ) || audio.setDtmfRemovalConfig( nullptr ) );
      },
      assertions( "InterfacePhysicalConfig: !pAudioConfig.isNull(); Text: in_szText != nullptr; "
                  "DigitalInterfacePhysicalConfig: !pDChannelConfig.isNull(); AnalogInterfacePhysicalConfig: "
                  "!in_pAnalogInterface.isNull(); AudioConfig: !pEchoCancellationConfig.isNull(), "
                  "!pAcousticEchoCancellationConfig.isNull(), !pLevelControlConfig.isNull(), "
                  "!pBackgroundNoiseAttenuationConfig.isNull(), !pDtmfRemovalConfig.isNull()" ) },
    { "PhysicalOfOtherClass",
      [] {
          readPhysicalOfOtherClass<InterfacePhysicalConfigXmlSerializer, void>( &Unapplied::pDigital );
          readPhysicalOfOtherClass<DigitalInterfacePhysicalConfigXmlSerializer, AnalogInterfacePhysicalConfig>(
              &Unapplied::pDigital );
          readPhysicalOfOtherClass<TirvanaDigitalInterfacePhysicalConfigXmlSerializer, DigitalInterfacePhysicalConfig>(
              &Unapplied::pDigital );
          readPhysicalOfOtherClass<AnalogInterfacePhysicalConfigXmlSerializer, DigitalInterfacePhysicalConfig>(
              &Unapplied::pAnalog );
          readPhysicalOfOtherClass<TirvanaAnalogInterfacePhysicalConfigXmlSerializer, AnalogInterfacePhysicalConfig>(
              &Unapplied::pAnalog );
      },
      assertions( "InterfacePhysicalConfigXmlSerializer: !hInterfacePhysicalConfig.isNull(); "
                  "DigitalInterfacePhysicalConfigXmlSerializer: !hDigitalInterfacePhysicalConfig.isNull(); "
                  "TirvanaDigitalInterfacePhysicalConfigXmlSerializer: "
                  "!hTirvanaDigitalInterfacePhysicalConfig.isNull(); AnalogInterfacePhysicalConfigXmlSerializer: "
                  "!hAnalogInterfacePhysicalConfig.isNull(); TirvanaAnalogInterfacePhysicalConfigXmlSerializer: "
                  "!pTirvanaConfig.isNull()" ) },
    { "PhysicalSerializersWithoutClass",
      [] {
          Unapplied document;
          XmlConfig& config = document.config;
          xmlNode* const pElement = document.pDigital;
          xmlNode* const pAudio = XML::findFirstElement( pElement, "audio" );
          EXPECT_TRUE( NoAudioReader().read( pElement, config ).isNull() );
          EXPECT_FALSE( ( MakingAudio<AudioConfigXmlSerializer, void>().read( pAudio, config ) ) );
          EXPECT_FALSE( ( MakingAudio<TirvanaAudioConfigXmlSerializer, AudioConfig>().read( pAudio, config ) ) );
          EXPECT_FALSE( NoDChannel().read( pElement, config ) || NoEcho().read( pElement, config ) );
          // These don't know what performs the block.
          EXPECT_FALSE( EchoCancellationConfigXmlSerializer().read( nullptr, config ) ||
                        AcousticEchoCancellationConfigXmlSerializer().read( nullptr, config ) ||
                        LevelControlConfigXmlSerializer().read( nullptr, config ) ||
                        BackgroundNoiseAttenuationConfigXmlSerializer().read( nullptr, config ) ||
                        DtmfRemovalConfigXmlSerializer().read( nullptr, config ) );
      },
      assertions(
          "InterfacePhysicalConfigXmlSerializer: !pAudioConfigXmlSerializer.isNull(); "
          "TirvanaDigitalInterfacePhysicalConfigXmlSerializer: !hTirvanaDigitalInterfacePhysicalConfig.isNull(); "
          "AudioConfigXmlSerializer: !pAudioConfig.isNull(); TirvanaAudioConfigXmlSerializer: "
          "!pTirvanaAudioConfig.isNull(); DChannelConfigXmlSerializer: !pDChannelConfig.isNull(); "
          "EchoCancellationConfigXmlSerializer: !pEchoCancellationConfig.isNull(); "
          "HardwareEchoCancellationConfigXmlSerializer: !pHardwareConfig.isNull(); "
          "EchoCancellationConfigXmlSerializer: !pEchoCancellationConfig.isNull(); "
          "AcousticEchoCancellationConfigXmlSerializer: !pAcousticEchoCancellationConfig.isNull(); "
          "LevelControlConfigXmlSerializer: !pLevelControlConfig.isNull(); "
          "BackgroundNoiseAttenuationConfigXmlSerializer: !pBackgroundNoiseAttenuationConfig.isNull(); "
          "DtmfRemovalConfigXmlSerializer: !pDtmfRemovalConfig.isNull()" ) },
};

} // namespace

PSTN_CASES( PhysicalCases, readCases( "physical.cases" ) );
PSTN_CASES( PhysicalCalls, CALLS );

TEST( Physical, DChannelsAreRecordedBelowTheInstallation ) {
    GlobalConfig::getInstance().setString( "marovane.Installation.Directory", "/opt/gateway" );
    XmlConfig config;
    loadValid( config );
    GlobalConfig::getInstance().remove( "marovane.Installation.Directory" );
    EXPECT_STREQ( config.getDigitalInterfaceConfig( 2, 1 )->getPhysicalConfig()->getDChannelConfig()->getPcapPathName(),
                  "/opt/gateway/logs/DChannelPcapFiles/" );
}

TEST( Physical, PlainReadersMakePlainObjects ) {
    const TSHandle<InterfacePhysicalConfig> hAnalog(
        AnalogInterfacePhysicalConfigXmlSerializer().newInterfacePhysicalConfig() );
    const InterfacePhysicalConfig& analog = *hAnalog;
    EXPECT_EQ( typeid( analog ), typeid( AnalogInterfacePhysicalConfig ) );
    Unapplied document;
    const auto hConfig = DigitalInterfacePhysicalConfigXmlSerializer().read( document.pDigital, document.config );
    ASSERT_FALSE( hConfig.isNull() );
    const InterfacePhysicalConfig& digital = *hConfig;
    EXPECT_EQ( typeid( digital ), typeid( DigitalInterfacePhysicalConfig ) );
    EXPECT_EQ( dynamic_cast<const TirvanaAudioConfig*>( hConfig->getAudioConfig().get() ), nullptr );
}

TEST( Physical, CountriesHaveOneNameEach ) {
    const CountryMap& countries = CountryMap::getInstance();
    EXPECT_EQ( countries.getType( "CANADA" ), Country::CANADA );
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

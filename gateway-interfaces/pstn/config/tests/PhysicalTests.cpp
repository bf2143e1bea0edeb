#include <typeinfo>

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

template <class... TConfigs>
constexpr bool ARE_ABSTRACT = ( std::is_abstract_v<TConfigs> && ... );
static_assert( ARE_ABSTRACT<EchoCancellationConfig, AcousticEchoCancellationConfig, LevelControlConfig,
                            BackgroundNoiseAttenuationConfig, DtmfRemovalConfig> );

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
      assertions( "InterfacePhysicalConfig: !pAudioConfig.isNull(); Text: in_szText != nullptr; "
                  "DigitalInterfacePhysicalConfig: !pDChannelConfig.isNull(); AnalogInterfacePhysicalConfig: "
                  "!in_pAnalogInterface.isNull()" ) },
    { "AudioRefusesNull",
      [] {
          AudioConfig config;
          EXPECT_FALSE(
              config.setEchoCancellationConfig( nullptr ) || config.setAcousticEchoCancellationConfig( nullptr ) ||
              config.setLevelControlConfig( nullptr ) || config.setBackgroundNoiseAttenuationConfig( nullptr ) ||
              config.setDtmfRemovalConfig( nullptr ) );
      },
      assertions( "AudioConfig: !pEchoCancellationConfig.isNull(), !pAcousticEchoCancellationConfig.isNull(), "
                  "!pLevelControlConfig.isNull(), !pBackgroundNoiseAttenuationConfig.isNull(), "
                  "!pDtmfRemovalConfig.isNull()" ) },
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
      assertions(
          "InterfacePhysicalConfigXmlSerializer: !pAudioConfigXmlSerializer.isNull(); "
          "TirvanaDigitalInterfacePhysicalConfigXmlSerializer: !hTirvanaDigitalInterfacePhysicalConfig.isNull(); "
          "AudioConfigXmlSerializer: !pAudioConfig.isNull(); TirvanaAudioConfigXmlSerializer: "
          "!pTirvanaAudioConfig.isNull(); DChannelConfigXmlSerializer: !pDChannelConfig.isNull(); "
          "EchoCancellationConfigXmlSerializer: !pEchoCancellationConfig.isNull(); "
          "HardwareEchoCancellationConfigXmlSerializer: !pHardwareConfig.isNull()" ) },
};

} // namespace

PSTN_LOAD_CASES( PhysicalCases, readCases( "physical.cases" ) );
PSTN_CALL_CASES( PhysicalCalls, CALLS );

TEST( Physical, DChannelsAreRecordedBelowTheInstallation ) {
    GlobalConfig::getInstance().setString( "marovane.Installation.Directory", "/opt/gateway" );
    XmlConfig config;
    loadValid( config, TestDocument() );
    GlobalConfig::getInstance().remove( "marovane.Installation.Directory" );
    EXPECT_STREQ( config.getDigitalInterfaceConfig( 2, 1 )->getPhysicalConfig()->getDChannelConfig()->getPcapPathName(),
                  "/opt/gateway/logs/DChannelPcapFiles/" );
}

TEST( Physical, PlainReadersMakePlainObjects ) {
    const TSHandle<InterfacePhysicalConfig> hAnalog(
        AnalogInterfacePhysicalConfigXmlSerializer().newInterfacePhysicalConfig() );
    const InterfacePhysicalConfig& analog = *hAnalog;
    EXPECT_EQ( typeid( analog ), typeid( AnalogInterfacePhysicalConfig ) );
    XmlConfig config;
    const Element root = getUnapplied();
    const auto hConfig = DigitalInterfacePhysicalConfigXmlSerializer().read( findPhysical( root ), config );
    ASSERT_FALSE( hConfig.isNull() );
    const InterfacePhysicalConfig& digital = *hConfig;
    EXPECT_EQ( typeid( digital ), typeid( DigitalInterfacePhysicalConfig ) );
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

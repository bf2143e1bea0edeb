#include "ConfigTest.h"
#include "Serializers.h"

// Analog call control: what its readers and containers refuse, and what they let pass.

namespace Velquin::Pstn::Test {

namespace {

// ---- Calls that no document provokes

/// A reader that makes objects of another class.
template <class TXmlSerializer, class TMade>
class Making : public TXmlSerializer {
public:
    AnalogCallControlCommonConfig* newAnalogCallControlCommonConfig() override { return new TMade(); }
};

void expectNotRead( AnalogCallControlCommonConfigXmlSerializer&& in_xmlSerializer ) {
    const Element element( "<analogConfig ID='1' displayName=''/>" );
    XmlConfig config;
    TSHandle<CallControlConfig> hCallControl( new CallControlConfig() );
    const TSHandle<AnalogCallControlCommonConfig> hRead( in_xmlSerializer.read( hCallControl, element.get(), config ) );
    EXPECT_TRUE( hRead.isNull() );
}

template <class TXmlSerializer, class TConfig>
void expectEntryNotRead() {
    TSHandle<CallControlConfig> hCallControl( new CallControlConfig() );
    typename TXmlSerializer::InterfaceRefXmlSerializer xmlSerializer;
    EXPECT_FALSE( xmlSerializer.read( LimitedObjPtr<TConfig>( nullptr ), hCallControl, nullptr, Config() ) );
}

template <class TConfig>
void expectNullRefused() {
    TConfig config;
    EXPECT_FALSE( config.addApplyToAnalogInterface( nullptr ) );
    EXPECT_FALSE( config.addApplyToAnalogInterfaceVector( { nullptr, nullptr } ) );
    EXPECT_TRUE( config.getApplyToAnalogInterfaces().empty() );
    EXPECT_FALSE( config.isAppliedToInterface( nullptr ) );
    EXPECT_TRUE( config.setToneSetName( "EUROPE" ) );
    EXPECT_STREQ( config.getToneSetName(), "EUROPE" );
}

// The vector ends with its first fault.
const std::vector<std::string> NULL_REFUSED =
    assertions( "AppliedAnalogCallControlConfig: !in_hAnalogInterface.isNull(), !in_hAnalogInterface.isNull(), "
                "in_szInterfaceuniqueId != NULL" );

const std::vector<Case> CALLS{
    { "AnalogAddNull",
      [] {
          EXPECT_FALSE( AnalogCallControlConfig().addFXOConfig( nullptr ) );
          EXPECT_FALSE( AnalogCallControlConfig().addFXSConfig( nullptr ) );
          EXPECT_FALSE( AnalogDisconnectSupervisionConfig().addDisconnectDetector( nullptr ) );
          EXPECT_FALSE( AnalogDisconnectDetectorConfig().parseSequence( nullptr ) );
      },
      assertions(
          "AnalogCallControlConfig: !pFxoConfig.isNull(), !pFxsConfig.isNull(); AnalogDisconnectSupervisionConfig: "
          "!pDetectorConfig.isNull(); AnalogDisconnectDetectorConfig: in_szSequence != nullptr" ) },
    { "AnalogOfOtherClass",
      [] {
          expectNotRead( Making<AnalogFxoConfigXmlSerializer, AnalogFxsConfig>() );
          expectNotRead( Making<AnalogFxsConfigXmlSerializer, AnalogFxoConfig>() );
          expectNotRead( AnalogCallControlCommonConfigXmlSerializer() );
      },
      assertions( "AnalogFxoConfigXmlSerializer: !pFxoConfig.isNull(); AnalogFxsConfigXmlSerializer: "
                  "!pFxsConfig.isNull(); AnalogCallControlCommonConfigXmlSerializer: ! pCommonConfig.isNull()" ) },
    { "AnalogEntryOfNoConfig",
      [] {
          expectEntryNotRead<AnalogFxoConfigXmlSerializer, AnalogFxoConfig>();
          expectEntryNotRead<AnalogFxsConfigXmlSerializer, AnalogFxsConfig>();
      },
      assertions( "AnalogFxoConfigXmlSerializer: !in_pFxoConfig.isNull(); AnalogFxsConfigXmlSerializer: "
                  "!in_pFxsConfig.isNull()" ) },
    { "FxoOfNull", &expectNullRefused<AnalogFxoConfig>, NULL_REFUSED },
    { "FxsOfNull", &expectNullRefused<AnalogFxsConfig>, NULL_REFUSED },
};

} // namespace

PSTN_CASES( AnalogCases, readCases( "analog.cases" ) );
PSTN_CASES( AnalogCalls, CALLS );

// ---- The model

TEST( Analog, KnowsThePortsThatItIsAppliedTo ) {
    XmlConfig config;
    loadValid( config );
    const AnalogCallControlConfig& analog = *config.getCallControlConfig()->getAnalogConfig();
    for ( const char* const szPort : { "b1(Lines)ai1(Line-A)", "b1(Lines)ai2(Line-B)", "b2(Phones)ai1(Phone-A)" } )
        EXPECT_TRUE( analog.hasAnalogCallControlConfig( szPort ) ) << szPort;
    for ( const char* const szId : { "", "b1ai1", "b1(Lines)ai1(LINE-A)", "b1(Lines)ai1(Line-A) ", "b1(Lines)ai3()" } )
        EXPECT_FALSE( analog.hasAnalogCallControlConfig( szId ) ) << szId;
    const AnalogFxoConfig& fxo = *analog.getFxoConfigs().at( 1 );
    EXPECT_FALSE( fxo.isAppliedToInterface( "b2(Phones)ai1(Phone-A)" ) );
    EXPECT_FALSE( AnalogCallControlConfig().hasAnalogCallControlConfig( "b1(Lines)ai1(Line-A)" ) );
    EXPECT_EQ( AnalogFxoConfig( fxo ).getInboundCallHandlingConfigHandle().get(),
               fxo.getInboundCallHandlingConfigHandle().get() )
        << "a copy shares its parts";
}

TEST( Analog, KeepsTheFirstOfTwoConfigurationsOfOneNumber ) {
    AnalogCallControlConfig analog;
    auto* const pFirst = new AnalogFxoConfig();
    captureLines( [&] {
        EXPECT_TRUE( analog.addFXOConfig( pFirst ) );
        EXPECT_TRUE( analog.addFXSConfig( new AnalogFxsConfig() ) ) << "FXS has numbers of its own";
        EXPECT_FALSE( analog.addFXOConfig( new AnalogFxoConfig() ) );
    } );
    EXPECT_EQ( analog.getFxoConfigs().at( 0 ).get(), pFirst );
}

TEST( Analog, ParsesSequences ) {
    using Sequence = std::vector<AnalogDisconnectDetectorConfig::Sequencemenber>;
    const std::vector<std::pair<const char*, Sequence>> vecTable{
        { "busy/2,silence", { { "busy", "2" }, { "silence", "" } } },
        { "busy", { { "busy", "" } } },
        { "", {} },
        { " a / b , c ", { { " a ", " b " }, { " c ", "" } } },
        { "a/,/b", { { "a", "" }, { "", "b" } } },
        { "/", { { "", "" } } },
        { " ,a,a", { { " ", "" }, { "a", "" }, { "a", "" } } } };
    AnalogDisconnectDetectorConfig detector;
    for ( const auto& [szText, vecExpected] : vecTable ) {
        EXPECT_TRUE( detector.parseSequence( szText ) ) << szText;
        EXPECT_EQ( detector.getSequence(), vecExpected ) << szText;
    }
    for ( const char* const szText : { "a/b/c", "a,b/c/d", "a//b", "//", ",", "a,,b", ",a", "a," } ) {
        const StringVector vecLines =
            captureLines( [&] { EXPECT_FALSE( detector.parseSequence( szText ) ) << szText; } );
        EXPECT_TRUE( detector.getSequence().empty() ) << szText;
        EXPECT_EQ( vecLines.size(), 1U ) << szText;
    }
}

TEST( Analog, PartsHaveAnAccountOfTheirOwnAndALoggerBelowThatOfTheWhole ) {
    using Inbound = AnalogFxsConfig::InboundCallHandlingConfig;
    EXPECT_STREQ( Inbound::getMemAccountName(), "InboundCallHandlingConfig" );
    EXPECT_STREQ( Inbound::getLogger().getName(), "marovane.pstn.config.AnalogFxsConfig.InboundCallHandlingConfig" );
}

TEST( Analog, LogsAtDebugWhatItAdds ) {
    const Velquin::Test::LogCapture log( Logger::DEBUG_LEVEL );
    XmlConfig config;
    EXPECT_TRUE( config.load( COMPLETE.c_str(), SCHEMA, false ) );
    StringVector vecLines;
    for ( const auto& [nLevel, strLogger, strMessage] : log.getRecords() ) {
        if ( strLogger.starts_with( "marovane.pstn.config.Analog" ) && strMessage.starts_with( "adding " ) )
            vecLines.push_back( std::to_string( nLevel ) + strLogger.substr( 20 ) + ": " + strMessage );
    }
    // The first three are those of the boards.
    EXPECT_EQ( StringVector( vecLines.begin() + 3, vecLines.end() ),
               ( StringVector{ "10000.AnalogDisconnectSupervisionConfig: adding disconnect detector busy",
                               "10000.AnalogFxoConfig: adding board= 1, interface= 1 To Analgo Fxo config ID= 1",
                               "10000.AnalogFxoConfig: adding board= 1, interface= 2 To Analgo Fxo config ID= 1",
                               "10000.AnalogCallControlConfig: adding new Fxo config: 1",
                               "10000.AnalogFxsConfig: adding board= 2, interface= 1 To Analgo Fxs config ID= 1",
                               "10000.AnalogCallControlConfig: adding new Fxs config: 1" } ) );
}

} // namespace Velquin::Pstn::Test

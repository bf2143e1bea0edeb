#include <cctype>
#include <stdexcept>
#include <utility>

#include "ConfigTest.h"
#include "DocumentPath.h"
#include "LogCapture.h"
#include "analog/AnalogCallControlConfigXmlSerializer.h"
#include "analog/AnalogDisconnectSupervisionConfigXmlSerializer.h"
#include "analog/AnalogFxoConfigXmlSerializer.h"
#include "analog/AnalogFxsConfigXmlSerializer.h"
#include "hardware/BoardConfig.h"
#include "xml/LibXml2.h"

// Analog call control: what its readers and containers refuse, what they let pass, and the values that they keep.

namespace Velquin::Pstn::Test {

namespace {

using FxoInbound = AnalogFxoConfig::InboundCallHandlingConfig;
using FxoOutbound = AnalogFxoConfig::OutboundCallHandlingConfig;
using Notification = AnalogFxsConfig::DisconnectAnswerNotificationConfig;

const std::string ASSERTION = "ERROR marovane.core.Assertion: Assertion failed: ";
const std::string FXO_PATH = "/pstnConfig/callControl/analog/analogFxoConfig";
const std::string FXS_PATH = "/pstnConfig/callControl/analog/analogFxsConfig";

std::string replace( std::string in_strText, const std::vector<Edit>& in_vecEdits ) {
    return TestDocument( std::move( in_strText ) ).edit( in_vecEdits ).getText();
}

/// The FXO configuration of the complete document with another number, applied to nothing.
std::string otherFxo( const std::string& in_strId ) {
    return replace( getElementText( FXO_PATH ), { { "ID=\"1\" displayName", "ID=\"" + in_strId + "\" displayName" },
                                                  { "<interfaceRef boardID=\"1\" channelGroupID=\"both\"/>", "" } } );
}

/// The same, so that it can be read as an FXS configuration, too.
std::string fxoAndFxs( const std::string& in_strId ) {
    return replace( otherFxo( in_strId ),
                    { { "<analogFxoConfig ", "<analogFxoConfig regretTimeMs=\"8\" oosBehavior=\"NONE\" " },
                      { "<inboundCallHandling>", "<inboundCallHandling minExpectedDigits=\"1\" "
                                                 "interDigitTimeoutMs=\"2\" busyToneDurationMs=\"3\" "
                                                 "dialToneDurationMs=\"4\"><relayEarlyMedia value=\"ENABLED\"/>" },
                      { "<disconnectSupervision>", "<hotlineDialing enable=\"NO\"/><disconnectSupervision>" } } );
}

/// Puts an element behind that of the path.
Edit behind( const std::string& in_strPath, const std::string& in_strElement ) {
    const std::string strEnd = "</" + in_strPath.substr( in_strPath.rfind( '/' ) + 1 ) + ">";
    return { strEnd, strEnd + "\n" + in_strElement };
}

// ---- Calls that no document provokes

/// A reader that makes objects of another class.
template <class TXmlSerializer, class TMade>
class Making : public TXmlSerializer {
public:
    AnalogCallControlCommonConfig* newAnalogCallControlCommonConfig() override { return new TMade(); }
};

void expectNotRead( AnalogCallControlCommonConfigXmlSerializer&& in_xmlSerializer ) {
    const char* const szText = "<analogConfig ID=\"1\" displayName=\"\"/>";
    const XmlDocPtr pDocument( xmlReadMemory( szText, static_cast<int>( std::char_traits<char>::length( szText ) ),
                                              "analog.xml", nullptr, 0 ) );
    XmlConfig config;
    TSHandle<CallControlConfig> hCallControl( new CallControlConfig() );
    const TSHandle<AnalogCallControlCommonConfig> hRead(
        in_xmlSerializer.read( hCallControl, xmlDocGetRootElement( pDocument.get() ), config ) );
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

/// Assertions of that text in that file.
std::string assertion( const std::string& in_strText, const std::string& in_strFile ) {
    return ASSERTION + in_strText + ", file " + in_strFile + ", line N";
}

std::string notImplemented( const std::string& in_strClass ) {
    return assertion( "Not implemented : " + in_strClass + "::write", in_strClass );
}

const std::string NULL_INTERFACE = assertion( "!in_hAnalogInterface.isNull()", "AppliedAnalogCallControlConfig" );
const std::string NULL_UNIQUE_ID = assertion( "in_szInterfaceuniqueId != NULL", "AppliedAnalogCallControlConfig" );

const std::vector<CallCase> CALLS{
    { "AnalogAddNull",
      [] {
          EXPECT_FALSE( AnalogCallControlConfig().addFXOConfig( nullptr ) );
          EXPECT_FALSE( AnalogCallControlConfig().addFXSConfig( nullptr ) );
          EXPECT_FALSE( AnalogDisconnectSupervisionConfig().addDisconnectDetector( nullptr ) );
          EXPECT_FALSE( AnalogDisconnectDetectorConfig().parseSequence( nullptr ) );
      },
      { assertion( "!pFxoConfig.isNull()", "AnalogCallControlConfig" ),
        assertion( "!pFxsConfig.isNull()", "AnalogCallControlConfig" ),
        assertion( "!pDetectorConfig.isNull()", "AnalogDisconnectSupervisionConfig" ),
        assertion( "in_szSequence != nullptr", "AnalogDisconnectDetectorConfig" ) } },
    { "AnalogOfOtherClass",
      [] {
          expectNotRead( Making<AnalogFxoConfigXmlSerializer, AnalogFxsConfig>() );
          expectNotRead( Making<AnalogFxsConfigXmlSerializer, AnalogFxoConfig>() );
          expectNotRead( AnalogCallControlCommonConfigXmlSerializer() );
      },
      { assertion( "!pFxoConfig.isNull()", "AnalogFxoConfigXmlSerializer" ),
        assertion( "!pFxsConfig.isNull()", "AnalogFxsConfigXmlSerializer" ),
        assertion( "! pCommonConfig.isNull()", "AnalogCallControlCommonConfigXmlSerializer" ) } },
    { "AnalogEntryOfNoConfig",
      [] {
          expectEntryNotRead<AnalogFxoConfigXmlSerializer, AnalogFxoConfig>();
          expectEntryNotRead<AnalogFxsConfigXmlSerializer, AnalogFxsConfig>();
      },
      { assertion( "!in_pFxoConfig.isNull()", "AnalogFxoConfigXmlSerializer" ),
        assertion( "!in_pFxsConfig.isNull()", "AnalogFxsConfigXmlSerializer" ) } },
    // The vector ends with its first fault.
    { "FxoOfNull", &expectNullRefused<AnalogFxoConfig>, { NULL_INTERFACE, NULL_INTERFACE, NULL_UNIQUE_ID } },
    { "FxsOfNull", &expectNullRefused<AnalogFxsConfig>, { NULL_INTERFACE, NULL_INTERFACE, NULL_UNIQUE_ID } },
    { "AnalogWrite",
      [] {
          EXPECT_FALSE( AnalogCallControlConfigXmlSerializer().write( nullptr, AnalogCallControlConfig() ) );
          EXPECT_FALSE( AnalogCallControlCommonConfigXmlSerializer().write( nullptr, AnalogFxoConfig() ) );
          EXPECT_FALSE( AnalogFxoConfigXmlSerializer().write( nullptr, AnalogFxoConfig() ) );
          EXPECT_FALSE( AnalogFxsConfigXmlSerializer().write( nullptr, AnalogFxsConfig() ) );
          EXPECT_FALSE(
              AnalogDisconnectSupervisionConfigXmlSerializer().write( nullptr, AnalogDisconnectSupervisionConfig() ) );
      },
      { notImplemented( "AnalogCallControlConfigXmlSerializer" ),
        notImplemented( "AnalogCallControlCommonConfigXmlSerializer" ),
        notImplemented( "AnalogFxoConfigXmlSerializer" ), notImplemented( "AnalogFxsConfigXmlSerializer" ),
        notImplemented( "AnalogDisconnectSupervisionConfigXmlSerializer" ) } },
};

} // namespace

PSTN_LOAD_CASES( AnalogCases, readCases( "analog.cases" ) );
PSTN_CALL_CASES( AnalogCalls, CALLS );

// ---- Values

namespace {

using Numbers = std::vector<unsigned int>;
using Strings = std::vector<std::string>;
using Sequence = std::vector<AnalogDisconnectDetectorConfig::Sequencemenber>;

const std::string DIAL = FXO_PATH + "/outboundCallHandling/dial";
const std::string ANSWER = FXO_PATH + "/outboundCallHandling/connectSupervision/connectOutboundSide";
const std::string RING = FXO_PATH + "/disconnectSupervision" + "/disconnectDetectors/ringCadenceDetector";

/// The complete document, changed and loaded.
class Loaded {
public:
    explicit Loaded( const std::vector<Edit>& in_vecEdits = {}, bool in_bSilent = true ) {
        const TemporaryFile file( TestDocument().edit( in_vecEdits ).getText() );
        const LoadResult result = load( m_config, file.getPath() );
        EXPECT_EQ( result.vecLines.empty(), in_bSilent ) << join( result.vecLines );
        if ( !result.bValid )
            throw std::runtime_error( "the document doesn't load" );
    }
    explicit Loaded( const Edit& in_edit, bool in_bSilent = true )
        : Loaded( std::vector<Edit>{ in_edit }, in_bSilent ) {}

    const CallControlConfig& get() const { return *m_config.getCallControlConfig(); }
    const AnalogCallControlConfig& getAnalog() const { return *get().getAnalogConfig(); }
    const AnalogFxoConfig& getFxo( unsigned int in_uId = 1 ) const { return *getAnalog().getFxoConfigs().at( in_uId ); }
    const AnalogFxsConfig& getFxs( unsigned int in_uId = 1 ) const { return *getAnalog().getFxsConfigs().at( in_uId ); }
    const FxoOutbound& getOutbound() const { return *getFxo().getOutboundCallHandlingConfigHandle(); }
    const AnalogDisconnectSupervisionConfig& getSupervision() const {
        return *getFxo().getDisconnectSupervisonConfigHandle();
    }

private:
    XmlConfig m_config;
};

} // namespace

// Every keyword has its test elsewhere.
TEST( Analog, KeepsExactlyTheValuesOfTheDocument ) {
    const Loaded loaded;
    EXPECT_EQ( loaded.getAnalog().getFxoConfigs().size(), 1U );
    EXPECT_EQ( loaded.getAnalog().getFxsConfigs().size(), 1U );
    const AnalogFxoConfig& fxo = loaded.getFxo();
    const FxoInbound& in = *fxo.getInboundCallHandlingConfigHandle();
    const FxoOutbound& out = loaded.getOutbound();
    EXPECT_EQ( ( Numbers{ fxo.getId(), fxo.getOnHookMinimumDurationMs(), in.getNumberOfRings(), in.getNotifyDelayMs(),
                          out.getPreDialDelayMs(), out.getInterDigitDelayMs(), out.getDTMFDigitDurationMs(),
                          out.getDisconnectTimeoutMs(), out.getConnectOnNoRemoteRingTimeoutMs(),
                          out.getConnectDelayMs(), loaded.getSupervision().getRingCadenceOffDelayMs() } ),
               ( Numbers{ 1, 1500, 2, 100, 200, 60, 80, 9000, 7000, 10, 6000 } ) );
    EXPECT_EQ( ( Strings{ fxo.getDisplayName(),
                          fxo.getToneSetName(),
                          out.getInternationalDialingSpecialCharacterSubstitute(),
                          { out.getInternationalDialingSpecialCharacter() } } ),
               ( Strings{ "PBX lines", "", "00", "#" } ) );
    const auto& mapDetectors = loaded.getSupervision().getDisconnectDetectorsMap();
    EXPECT_EQ( mapDetectors.size(), 1U );
    EXPECT_STREQ( mapDetectors.at( "busy" )->getName(), "busy" );
    EXPECT_EQ( mapDetectors.at( "busy" )->getSequence(), ( Sequence{ { "busy", "2" }, { "silence", "" } } ) );
    EXPECT_EQ( AnalogFxoConfig( fxo ).getInboundCallHandlingConfigHandle().get(), &in ) << "a copy shares its parts";

    const AnalogFxsConfig& fxs = loaded.getFxs();
    const AnalogFxsConfig::InboundCallHandlingConfig& digits = *fxs.getInboundCallHandlingConfigHandle();
    const AnalogFxsConfig::HotlineDialingConfig& hotline = *fxs.getHotlineDialingConfigHandle();
    EXPECT_EQ(
        ( Numbers{ fxs.getId(), fxs.getRegretTimeMs(), digits.getMinExpectedDigits(), digits.getInterDigitTimeoutMs(),
                   digits.getBusyToneDurationMs(), digits.getDialToneDurationMs(), hotline.getDelayBeforeDialingMs(),
                   fxs.getDisconnectAnswerNotificationConfig()->getCurrentDisconnectDurationMs() } ),
        ( Numbers{ 1, 300, 3, 4000, 30000, 20000, 500, 900 } ) );
    EXPECT_STREQ( fxs.getDisplayName(), "Telephones" );
    EXPECT_STREQ( hotline.getDialingNumber(), "5551234" );
}

TEST( Analog, MakesEachPortAChannelOfItsGroup ) {
    const Loaded loaded;
    Strings vecPorts;
    for ( const auto& hRange : loaded.get().getChannelGroupsConfig().at( "both" )->getBChannelRangeConfig() ) {
        if ( !hRange->getIsdnCommonConfig().isNull() )
            continue;
        EXPECT_EQ( ( Numbers{ hRange->getFirstChannel(), hRange->getLastChannel() } ), ( Numbers{ 1, 1 } ) );
        const bool bFxo = hRange->getInterfaceConfig()->getBoardConfig()->getId() == 1;
        EXPECT_EQ( hRange->getFxoConfig().get(), bFxo ? &loaded.getFxo() : nullptr );
        EXPECT_EQ( hRange->getFxsConfig().get(), bFxo ? nullptr : &loaded.getFxs() );
        vecPorts.emplace_back( hRange->getInterfaceConfig()->getUniqueId( false ) );
    }
    EXPECT_EQ( vecPorts, ( Strings{ "b1(Lines)ai1(Line-A)", "b1(Lines)ai2(Line-B)", "b2(Phones)ai1(Phone-A)" } ) );
    EXPECT_EQ( loaded.getFxo().getApplyToAnalogInterfaces().size(), 2U );
    for ( const std::string& strPort : vecPorts )
        EXPECT_TRUE( loaded.getAnalog().hasAnalogCallControlConfig( strPort.c_str() ) ) << strPort;
    for ( const char* const szId : { "", "b1ai1", "b1(Lines)ai1(LINE-A)", "b1(Lines)ai1(Line-A) ", "b1(Lines)ai3()" } )
        EXPECT_FALSE( loaded.getAnalog().hasAnalogCallControlConfig( szId ) ) << szId;
    EXPECT_FALSE( loaded.getFxo().isAppliedToInterface( "b2(Phones)ai1(Phone-A)" ) );
    EXPECT_FALSE( AnalogCallControlConfig().hasAnalogCallControlConfig( "b1(Lines)ai1(Line-A)" ) );
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

TEST( Analog, ReadsAnFxoElementBehindTheFxsElementTwice ) {
    const Loaded loaded(
        { behind( FXO_PATH, otherFxo( "3" ) ), behind( FXS_PATH, "<analogFxsConfig/>\n" + fxoAndFxs( "7" ) ) } );
    EXPECT_EQ( loaded.getAnalog().getFxoConfigs().size(), 3U );
    EXPECT_EQ( loaded.getAnalog().getFxsConfigs().size(), 2U );
    EXPECT_EQ( loaded.getFxo( 7 ).getOnHookMinimumDurationMs(), 1500U );
    EXPECT_EQ( loaded.getFxs( 7 ).getRegretTimeMs(), 8U );
}

TEST( Analog, TakesTheNumberThatATextBeginsWith ) {
    EXPECT_EQ( Loaded( withAttribute( FXO_PATH, "ID", "12abc" ) ).getFxo( 12 ).getId(), 12U );
    EXPECT_EQ( Loaded( withAttribute( FXS_PATH, "regretTimeMs", " 4294967295.9" ) ).getFxs().getRegretTimeMs(),
               4294967295U );
}

TEST( Analog, UsesTheSpecialCharacterUnlessItCouldBeADigit ) {
    const std::string strName = "InternationalDialingSpecialCharacter";
    const auto read = []( const Edit& in_edit ) {
        return Loaded( in_edit ).getOutbound().getInternationalDialingSpecialCharacter();
    };
    EXPECT_EQ( read( withoutAttribute( DIAL, strName ) ), '+' );
    for ( const char* const szValue : { "", "00", "#*", "5", "\xC3\xA9" } ) // the last one is two bytes
        EXPECT_EQ( read( withAttribute( DIAL, strName, szValue ) ), '+' ) << szValue;
    for ( const char* const szValue : { "*", " ", "+", "a" } )
        EXPECT_EQ( read( withAttribute( DIAL, strName, szValue ) ), *szValue );
}

TEST( Analog, UsesTheSubstituteWhenItIsDigits ) {
    const std::string strName = "InternationalDialingSpecialCharacterSubstitute";
    const auto read = []( const Edit& in_edit, bool in_bSilent = true ) {
        return std::string(
            Loaded( in_edit, in_bSilent ).getOutbound().getInternationalDialingSpecialCharacterSubstitute() );
    };
    EXPECT_EQ( read( withoutAttribute( DIAL, strName ) ), "011" );
    for ( const char* const szValue : { "0x11", "0 0", "+", "00 " } )
        EXPECT_EQ( read( withAttribute( DIAL, strName, szValue ), false ), "011" ) << szValue;
    for ( const char* const szValue : { "", "9", "0123456789012345678901234567890" } )
        EXPECT_EQ( read( withAttribute( DIAL, strName, szValue ) ), szValue );
}

TEST( Analog, IgnoresWhatDoesNotApply ) {
    const std::string strNotify = FXO_PATH + "/inboundCallHandling/notifyOutboundSide";
    const Loaded loaded( { withAttribute( strNotify, "condition", "ON-CALLER-ID" ),
                           withAttribute( ANSWER, "condition", "AFTER-DIALING-DESTINATION-NUMBER" ) } );
    EXPECT_EQ( loaded.getFxo().getInboundCallHandlingConfigHandle()->getNumberOfRings(), 0U );
    EXPECT_EQ( loaded.getOutbound().getDisconnectTimeoutMs(), 0U );
    const Loaded voice( withAttribute( ANSWER, "condition", "ON-VOICE" ) );
    EXPECT_EQ( voice.getOutbound().getDisconnectTimeoutMs(), 9000U );
    EXPECT_EQ( voice.getOutbound().getConnectOnNoRemoteRingTimeoutMs(), 0U );
}

TEST( Analog, HotlineThatIsOffHasNoDelayAndNoNumber ) {
    const std::string strPath = FXS_PATH + "/hotlineDialing";
    for ( const Edit& edit :
          { withAttribute( strPath, "enable", "NO" ), Edit{ getTag( strPath ), "<hotlineDialing enable=\"NO\"/>" } } ) {
        const Loaded loaded( edit );
        EXPECT_FALSE( loaded.getFxs().getHotlineDialingConfigHandle()->isEnabled() );
        EXPECT_EQ( loaded.getFxs().getHotlineDialingConfigHandle()->getDelayBeforeDialingMs(), 0xFFFFFFFFU );
        EXPECT_STREQ( loaded.getFxs().getHotlineDialingConfigHandle()->getDialingNumber(), "" );
    }
}

TEST( Analog, NotifiesNothingUnlessToldTo ) {
    const std::string strPath = FXS_PATH + "/disconnectAnswerNotification";
    for ( const Edit& edit : { Edit{ getTag( strPath ), "" }, withAttribute( strPath, "mode", "reverse" ) } ) {
        const Loaded loaded( edit );
        EXPECT_EQ( loaded.getFxs().getDisconnectAnswerNotificationConfig()->getMode(), Notification::Mode::NONE );
        EXPECT_EQ( loaded.getFxs().getDisconnectAnswerNotificationConfig()->getCurrentDisconnectDurationMs(), 0U );
    }
}

TEST( Analog, RingCadenceThatIsOffHasNoDelay ) {
    for ( const Edit& edit : { Edit{ getTag( RING ), "" }, withAttribute( RING, "active", "NO" ),
                               Edit{ getTag( RING ), "<ringCadenceDetector active=\"NO\"/>" } } ) {
        const Loaded loaded( edit );
        EXPECT_FALSE( loaded.getSupervision().isRingCadenceDetectionEnabled() );
        EXPECT_EQ( loaded.getSupervision().getRingCadenceOffDelayMs(), 0xFFFFFFFFU );
        EXPECT_EQ( loaded.getSupervision().getDisconnectDetectorsMap().size(), 1U );
    }
    EXPECT_EQ( AnalogDisconnectSupervisionConfig().getRingCadenceOffDelayMs(), 0xFFFFFFFFU );
}

TEST( Analog, ReadsALineWhoseDisconnectSupervisionIsWrong ) {
    const Loaded loaded( Edit{ "busy/2,silence", "busy/2/3" }, false );
    EXPECT_TRUE( loaded.getFxo().getDisconnectSupervisonConfigHandle().isNull() );
    EXPECT_EQ( loaded.getFxo().getApplyToAnalogInterfaces().size(), 2U );
}

TEST( Analog, DropsTheSecondDetectorOfAName ) {
    const Loaded loaded( Edit{ "<detector ", "<detector name=\"busy\" sequence=\"first\"/><detector " }, false );
    EXPECT_EQ( loaded.getSupervision().getDisconnectDetectorsMap().at( "busy" )->getSequence(),
               ( Sequence{ { "first", "" } } ) );
}

TEST( Analog, ParsesSequences ) {
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
        const Strings vecLines = captureLines( [&] { EXPECT_FALSE( detector.parseSequence( szText ) ) << szText; } );
        EXPECT_TRUE( detector.getSequence().empty() ) << szText;
        EXPECT_EQ( vecLines.size(), 1U ) << szText;
    }
}

TEST( Analog, LogsAtDebugWhatItAdds ) {
    const Velquin::Test::LogCapture log( Logger::DEBUG_LEVEL );
    XmlConfig config;
    EXPECT_TRUE( config.load( ( std::string( DATA_FOLDER ) + "/complete.xml" ).c_str(), SCHEMA, false ) );
    Strings vecLines;
    for ( const auto& [nLevel, strLogger, strMessage] : log.getRecords() ) {
        if ( strLogger.starts_with( "marovane.pstn.config.Analog" ) && strMessage.starts_with( "adding " ) )
            vecLines.push_back( std::to_string( nLevel ) + strLogger.substr( 20 ) + ": " + strMessage );
    }
    // The first three are those of the boards.
    EXPECT_EQ( Strings( vecLines.begin() + 3, vecLines.end() ),
               ( Strings{ "10000.AnalogDisconnectSupervisionConfig: adding disconnect detector busy",
                          "10000.AnalogFxoConfig: adding board= 1, interface= 1 To Analgo Fxo config ID= 1",
                          "10000.AnalogFxoConfig: adding board= 1, interface= 2 To Analgo Fxo config ID= 1",
                          "10000.AnalogCallControlConfig: adding new Fxo config: 1",
                          "10000.AnalogFxsConfig: adding board= 2, interface= 1 To Analgo Fxs config ID= 1",
                          "10000.AnalogCallControlConfig: adding new Fxs config: 1" } ) );
}

} // namespace Velquin::Pstn::Test

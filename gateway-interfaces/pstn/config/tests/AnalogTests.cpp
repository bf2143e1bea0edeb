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

const std::string DECIMAL = "The value must be a decimal number.";
const std::string INTERGER = "The value must be a positive interger.";
const std::string INTEGER = "The value must be a positive integer.";
const std::string ASSERTION = "ERROR marovane.core.Assertion: Assertion failed: ";
const std::string CALL_CONTROL = "ERROR XmlConfig: Call Control configuration declared in file {file} at line "
                                 "{line:<callControl>} contains one ore more errors. ";
const std::string NEW_FXO = ASSERTION + "pNewFXOConfig, file AnalogCallControlConfigXmlSerializer, line N";
const std::string NEW_FXS = ASSERTION + "pNewFXSConfig, file AnalogCallControlConfigXmlSerializer, line N";

// ---- Faults of elements

/// A reader, in whose words the faults of its elements are told.
struct Reader {
    std::string strPrefix; ///< of the names of its cases
    std::string strPath;   ///< of the element whose parts it reads
    std::string strNoun;
    std::string strLogger;
    std::string strAssertion; ///< that follows a fault; none where a fault is let pass

    std::string missing( const std::string& in_strPath, const std::string& in_strName,
                         const std::string& in_strLine = "{line}" ) const {
        return "ERROR " + strLogger + ": Missing attribute " + strPath + in_strPath + "/" + in_strName +
               end( in_strPath, in_strLine );
    }
    std::string invalid( const std::string& in_strPath, const std::string& in_strName, const std::string& in_strValue,
                         const std::string& in_strHint ) const {
        return "ERROR " + strLogger + ": Invalid attribute  [" + strPath + in_strPath + "/" + in_strName + "=" +
               in_strValue + end( in_strPath, "{line}" ) + in_strHint;
    }
    LoadCase fault( const std::string& in_strName, std::vector<Edit> in_vecEdits,
                    std::vector<std::string> in_vecLines ) const {
        if ( strAssertion.empty() )
            return { strPrefix + in_strName, std::move( in_vecEdits ), true, std::move( in_vecLines ) };
        in_vecLines.insert( in_vecLines.end(), { strAssertion, CALL_CONTROL } );
        return { strPrefix + in_strName, std::move( in_vecEdits ), false, std::move( in_vecLines ) };
    }

private:
    std::string end( const std::string& in_strPath, const std::string& in_strLine ) const {
        const std::string strElement = strPath + in_strPath;
        return "] for " + strNoun + strElement.substr( strElement.rfind( '/' ) + 1 ) +
               " declared in file {file} at line " + in_strLine + ". ";
    }
};

Reader makeReader( const std::string& in_strPrefix, const std::string& in_strPath, const std::string& in_strNoun,
                   const std::string& in_strClass, const std::string& in_strAssertion ) {
    return { in_strPrefix, "/pstnConfig/callControl/analog/" + in_strPath, in_strNoun + "analog config  ",
             in_strClass + "ConfigXmlSerializer", in_strAssertion };
}

const Reader FXO_COMMON = makeReader( "Fxo", "analogFxoConfig", "", "AnalogCallControlCommon", NEW_FXO );
const Reader FXS_COMMON = makeReader( "Fxs", "analogFxsConfig", "", "AnalogCallControlCommon", NEW_FXS );
const Reader FXO = makeReader( "Fxo", "analogFxoConfig", "fxo ", "AnalogFxo", NEW_FXO );
const Reader FXS = makeReader( "Fxs", "analogFxsConfig", "fxs ", "AnalogFxs", NEW_FXS );
const Reader SUPERVISION =
    makeReader( "Supervision", "analogFxoConfig/disconnectSupervision", "fxo ", "AnalogDisconnectSupervision", "" );

/// A required attribute: without it, and with a wrong value where not any text will do, its reader reports it.
struct Required {
    std::string strPath; ///< of the element, below that of the reader
    std::string strAttribute;
    std::string strWrong;
    std::string strHint;
    std::string strReported = strAttribute;
};

/// "/a/b" + "c" as "ABC".
std::string toName( const std::string& in_strPath, const std::string& in_strName ) {
    std::string strName;
    bool bCapital = true;
    for ( const char c : in_strPath + "/" + in_strName ) {
        if ( c != '/' )
            strName += bCapital ? static_cast<char>( std::toupper( c ) ) : c;
        bCapital = c == '/';
    }
    return strName;
}

void addCases( const Reader& in_reader, const std::vector<Required>& in_vecRequired,
               std::vector<LoadCase>& out_vecCases ) {
    for ( const auto& [strPath, strAttribute, strWrong, strHint, strReported] : in_vecRequired ) {
        const std::string strName = toName( strPath, strAttribute );
        out_vecCases.push_back( in_reader.fault( strName + "Missing",
                                                 { withoutAttribute( in_reader.strPath + strPath, strAttribute ) },
                                                 { in_reader.missing( strPath, strAttribute ) } ) );
        if ( strWrong.empty() )
            continue;
        out_vecCases.push_back( in_reader.fault(
            strName + "Invalid", { withAttribute( in_reader.strPath + strPath, strAttribute, strWrong ) },
            { in_reader.invalid( strPath, strReported, strWrong, strHint ) } ) );
    }
}

std::vector<LoadCase> makeAttributeCases() {
    const std::string strIn = "/inboundCallHandling";
    const std::string strDial = "/outboundCallHandling/dial";
    const std::string strAnswer = "/outboundCallHandling/connectSupervision/connectOutboundSide";
    const std::string strConnect = "/outboundCallHandling/connectSupervision/connect";
    const std::string strNotification = "/disconnectAnswerNotification";
    const std::string strRing = "/disconnectDetectors/ringCadenceDetector";
    std::vector<LoadCase> vecCases;
    addCases( FXO_COMMON, { { "", "ID", "abc", DECIMAL }, { "", "displayName", "", "" } }, vecCases );
    addCases( FXS_COMMON, { { "", "ID", "4294967296", DECIMAL }, { "", "displayName", "", "" } }, vecCases );
    addCases( FXO,
              { { "", "minimumOnHookDurationMs", "x", DECIMAL },
                { strIn + "/notifyOutboundSide", "condition", "NEVER", "" },
                { strIn + "/notifyOutboundSide", "numberOfRings", "two", INTERGER },
                { strIn + "/notifyOutboundSide", "delayInMs", "x", INTERGER },
                { strIn + "/connect", "condition", "ON-INBOUNDSIDE-NOTIFICATION", "" },
                { strIn + "/callerID", "type", "DTMF", "" },
                { strDial, "active", "yes", "" },
                { strDial, "waitForDialTone", "FALSE", "" },
                { strDial, "preDialDelayInMs", "x", INTERGER },
                { strDial, "interDigitDelayInMs", "x", INTERGER },
                { strDial, "DTMFDigitDurationInMs", "x", INTERGER },
                { strAnswer, "condition", "ON-RING", "" },
                { strAnswer, "disconnectTimeoutMs", "x", INTERGER },
                { strAnswer, "connectOnNoRemoteRingTimeoutMs", "x", INTERGER },
                { strConnect, "condition", "ON-OUTBOUNDSIDE-MEDIA-AVAILABLE", "" },
                { strConnect, "delayInMs", "x", INTERGER } },
              vecCases );
    addCases( FXS,
              { { "", "regretTimeMs", "x", INTERGER },
                { "", "oosBehavior", "BUSY", "" },
                { strIn, "minExpectedDigits", "x", INTERGER },
                { strIn, "interDigitTimeoutMs", "x", INTERGER, "minExpectedDigits" },
                { strIn, "busyToneDurationMs", "x", INTERGER },
                { strIn, "dialToneDurationMs", "x", INTERGER },
                { strIn + "/relayEarlyMedia", "value", "", "" },
                { "/hotlineDialing", "enable", "yes", "" },
                { "/hotlineDialing", "delayBeforeDialingMs", "x", INTEGER },
                { "/hotlineDialing", "dialingNumber", "", "" },
                { strNotification, "mode", "", "" },
                { strNotification, "currentDisconnectDurationMs", "x", INTEGER } },
              vecCases );
    addCases( SUPERVISION,
              { { strRing, "active", "yes", "" },
                { strRing, "ringCadenceOffDelayMs", "x", INTEGER },
                { "/disconnectDetectors/detector", "name", "", "" },
                { "/disconnectDetectors/detector", "sequence", "", "" } },
              vecCases );
    return vecCases;
}

/// Required child elements, by the path of the parent; what is reported for them is their name, but once.
std::vector<LoadCase> makeChildCases() {
    std::vector<LoadCase> vecCases;
    const auto add = [&vecCases]( const Reader& in_reader, const std::string& in_strParent,
                                  const std::string& in_strChild, const std::string& in_strReported ) {
        const std::string strParent = in_reader.strPath + in_strParent;
        vecCases.push_back( in_reader.fault(
            toName( in_strParent, in_strChild ) + "Missing", { { getElementText( strParent + "/" + in_strChild ), "" } },
            { in_reader.missing( in_strParent, in_strReported, "{line:" + getTag( strParent ) + "}" ) } ) );
    };
    const std::string strOut = "/outboundCallHandling";
    for ( const std::string strChild :
          { "inboundCallHandling", "outboundCallHandling", "disconnectSupervision", "applyTo" } )
        add( FXO, "", strChild, strChild );
    for ( const std::string strChild : { "notifyOutboundSide", "connect", "callerID" } )
        add( FXO, "/inboundCallHandling", strChild, strChild );
    for ( const std::string strChild : { "dial", "connectSupervision" } )
        add( FXO, strOut, strChild, strChild );
    for ( const std::string strChild : { "connectOutboundSide", "connect" } )
        add( FXO, strOut + "/connectSupervision", strChild, strChild );
    for ( const std::string strChild : { "inboundCallHandling", "hotlineDialing", "applyTo" } )
        add( FXS, "", strChild, strChild );
    add( FXS, "/inboundCallHandling", "relayEarlyMedia", "value" );
    add( SUPERVISION, "", "disconnectDetectors", "disconnectDetectors" );
    return vecCases;
}

/// The entries of `applyTo`; any name will do for them.
std::vector<LoadCase> makeEntryCases() {
    std::vector<LoadCase> vecCases;
    for ( const Reader& reader : { FXO, FXS } ) {
        Reader entry = reader;
        entry.strPrefix += "Entry";
        entry.strPath += "/applyTo/ref";
        entry.strLogger += "::InterfaceRefXmlSerializer";
        const std::string strOld = getTag( reader.strPath + "/applyTo/interfaceRef" );
        const auto add = [&]( const std::string& in_strName, const std::string& in_strNew,
                              const std::vector<std::string>& in_vecLines ) {
            vecCases.push_back( entry.fault( in_strName, { { strOld, in_strNew } }, in_vecLines ) );
        };
        const std::string strTwice = "ERROR ChannelGroupConfig: Add B-Channel range [1..1] of b2(Phones)ai1(Phone-A) "
                                     "to channelGroup \"both\". One more channel of this range are already contained "
                                     "in this group. Please edit your PSTN configuration to fix this problem.  Make "
                                     "sure to add any channel only once in a given channel group.";
        add( "BoardMissing", "<ref channelGroupID=\"both\"/>", { entry.missing( "", "boardID" ) } );
        add( "BoardInvalid", "<ref boardID=\"one\" channelGroupID=\"both\"/>",
             { entry.invalid( "", "boardID", "one", DECIMAL ) } );
        add( "BoardUnknown", "<ref boardID=\"9\" channelGroupID=\"none\"/>",
             { "ERROR Config: failed to get analog board: 9",
               entry.invalid( "", "boardID", "9", "Make sure to provide a valid board ID" ) } );
        add( "GroupMissing", "<ref boardID=\"2\" interfaceID=\"x\"/>", { entry.missing( "", "channelGroupID" ) } );
        add( "GroupUnknown", "<ref boardID=\"2\" channelGroupID=\"none\" interfaceID=\"x\"/>",
             { "ERROR CallControlConfig: failed to get channel group: none" } );
        add( "InterfaceInvalid", "<ref boardID=\"2\" channelGroupID=\"both\" interfaceID=\"x\"/>",
             { entry.invalid( "", "interfaceID", "x", DECIMAL ) } );
        add( "InterfaceUnknown", "<ref boardID=\"2\" channelGroupID=\"both\" interfaceID=\"9\"/>",
             { "ERROR AnalogBoardConfig: failed to get analog interface: 9",
               entry.invalid( "", "interfaceID", "9",
                              "Make sure to provide a valid interface ID whithin the context of boardID=" ) } );
        add( "PortTwice",
             "<ref boardID=\"2\" channelGroupID=\"both\"/><ref boardID=\"2\" channelGroupID=\"both\" "
             "interfaceID=\"1\"/>",
             { strTwice, "ERROR " + entry.strLogger + ": failed to add BChannel range to channel group ID= both" } );
    }
    return vecCases;
}

// ---- Cases of several elements

std::string replace( std::string in_strText, const std::vector<Edit>& in_vecEdits ) {
    return TestDocument( std::move( in_strText ) ).edit( in_vecEdits ).getText();
}

/// The FXO configuration of the complete document with another number, applied to nothing.
std::string otherFxo( const std::string& in_strId ) {
    return replace( getElementText( FXO.strPath ), { { "ID=\"1\" displayName", "ID=\"" + in_strId + "\" displayName" },
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

/// Puts an element behind that of the reader.
Edit behind( const Reader& in_reader, const std::string& in_strElement ) {
    const std::string strEnd = "</" + in_reader.strPath.substr( in_reader.strPath.rfind( '/' ) + 1 ) + ">";
    return { strEnd, strEnd + "\n" + in_strElement };
}

const Edit BAD_SUBSTITUTE{ "CharacterSubstitute=\"00\"", "CharacterSubstitute=\"0x11\"" };
const std::string BAD_SUBSTITUTE_LINE =
    "WARN AnalogFxoConfigXmlSerializer: Outbound Call Handling attribute InternationalDialingSpecialCharacterSubstitute"
    " of element Dialing must contain only digits. setting the value of this parameter to 011 since the entered value "
    "0x11 is not valid.";

/// An unknown condition without a timeout is told by the timeout.
LoadCase withoutTimeout( const std::string& in_strCondition ) {
    const std::string strPath = "/outboundCallHandling/connectSupervision/connectOutboundSide";
    return FXO.fault( "WithoutTimeout" + toName( "", in_strCondition.substr( 3 ) ),
                      { { "condition=\"ON-REMOTE-RING-STOPPED\" disconnectTimeoutMs=\"9000\"",
                          "condition=\"" + in_strCondition + "\"" } },
                      { FXO.missing( strPath, "disconnectTimeoutMs" ) } );
}

const std::vector<LoadCase> CASES{
    { "FxoIdTwice",
      { behind( FXO, otherFxo( "01" ) ) },
      false,
      { "ERROR AnalogCallControlConfig: failed to add Fxo config : 1",
        "ERROR AnalogCallControlConfigXmlSerializer: Error while adding analog FXO config", CALL_CONTROL } },
    { "FxsIdTwice",
      { { "<analogFxsConfig ID=\"1\"", "<analogFxsConfig ID=\"5\"" }, behind( FXS, fxoAndFxs( "5" ) ) },
      false,
      { "ERROR AnalogCallControlConfig: failed to add Fxs config : 5",
        "ERROR AnalogCallControlConfigXmlSerializer: Error while adding analog FXS config", CALL_CONTROL } },
    // The second element is nothing that could be read.
    { "FxsSecondElementIsPassedOver", { behind( FXS, "<analogFxsConfig/>" ) }, true, {} },
    { "FxoBehindFxsIsReadAsFxs",
      { behind( FXS, otherFxo( "2" ) ) },
      false,
      { "ERROR AnalogFxsConfigXmlSerializer: Missing attribute /pstnConfig/callControl/analog/analogFxoConfig[2]"
        "/regretTimeMs] for fxs analog config  analogFxoConfig declared in file {file} at line "
        "{line:<analogFxoConfig ID=\"2\"}. ",
        NEW_FXS, CALL_CONTROL } },
    withoutTimeout( "ON-RING" ),
    withoutTimeout( "ON-VOICE" ),
    { "FxoSubstituteNotDigits", { BAD_SUBSTITUTE }, true, { BAD_SUBSTITUTE_LINE }, SCHEMA },
    // The substitute is read before the delays.
    FXO.fault( "SubstituteBeforeDelays", { BAD_SUBSTITUTE, { "\"0x11\" preDialDelayInMs=\"200\"", "\"0x11\"" } },
               { BAD_SUBSTITUTE_LINE, FXO.missing( "/outboundCallHandling/dial", "preDialDelayInMs" ) } ),
    { "DetectorSequenceInvalid",
      { { "busy/2,silence", "busy/2/3,silence" } },
      true,
      { "ERROR AnalogDisconnectDetectorConfig: Invalid sequence for disconnect supervison",
        "ERROR AnalogDisconnectSupervisionConfigXmlSerializer: Could not parse detector sequence for disconnect "
        "detector busy" },
      SCHEMA },
    { "DetectorNameTwice",
      { { "<detector name=\"busy\" sequence=\"busy/2,silence\"/>",
          "<detector name=\"busy\" sequence=\"busy\"/><detector name=\"busy\" sequence=\"silence\"/>" } },
      true,
      { "ERROR AnalogDisconnectSupervisionConfig: failed to add disconnect detector config : busy" },
      SCHEMA },
};

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
}

/// Assertions of that text in that file.
std::string assertion( const std::string& in_strText, const std::string& in_strFile ) {
    return ASSERTION + in_strText + ", file " + in_strFile + ", line N";
}

std::string notImplemented( const std::string& in_strClass ) {
    return assertion( "Not implemented : " + in_strClass + "::write", in_strClass );
}

const std::string NULL_INTERFACE = assertion( "!in_hAnalogInterface.isNull()", "AppliedAnalogInterfaces" );
const std::string NULL_UNIQUE_ID = assertion( "in_szInterfaceuniqueId != NULL", "AppliedAnalogInterfaces" );

const std::vector<CallCase> CALLS{
    { "AnalogAddNull",
      [] {
          EXPECT_FALSE( AnalogCallControlConfig().addFXOConfig( nullptr ) );
          EXPECT_FALSE( AnalogCallControlConfig().addFXSConfig( nullptr ) );
          EXPECT_FALSE( AnalogDisconnectSupervisionConfig().addDisconnectDetector( nullptr ) );
      },
      { assertion( "!pFxoConfig.isNull()", "AnalogCallControlConfig" ),
        assertion( "!pFxsConfig.isNull()", "AnalogCallControlConfig" ),
        assertion( "!pDetectorConfig.isNull()", "AnalogDisconnectSupervisionConfig" ) } },
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

PSTN_LOAD_CASES( AnalogAttributeCases, makeAttributeCases() );
PSTN_LOAD_CASES( AnalogChildCases, makeChildCases() );
PSTN_LOAD_CASES( AnalogEntryCases, makeEntryCases() );
PSTN_LOAD_CASES( AnalogCases, CASES );
PSTN_CALL_CASES( AnalogCalls, CALLS );

// ---- Values

namespace {

using Numbers = std::vector<unsigned int>;
using Strings = std::vector<std::string>;
using Sequence = std::vector<AnalogDisconnectDetectorConfig::Sequencemenber>;

const std::string DIAL = FXO.strPath + "/outboundCallHandling/dial";
const std::string ANSWER = FXO.strPath + "/outboundCallHandling/connectSupervision/connectOutboundSide";
const std::string RING = SUPERVISION.strPath + "/disconnectDetectors/ringCadenceDetector";

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
    const Loaded loaded( { behind( FXO, otherFxo( "3" ) ), behind( FXS, "<analogFxsConfig/>\n" + fxoAndFxs( "7" ) ) } );
    EXPECT_EQ( loaded.getAnalog().getFxoConfigs().size(), 3U );
    EXPECT_EQ( loaded.getAnalog().getFxsConfigs().size(), 2U );
    EXPECT_EQ( loaded.getFxo( 7 ).getOnHookMinimumDurationMs(), 1500U );
    EXPECT_EQ( loaded.getFxs( 7 ).getRegretTimeMs(), 8U );
}

TEST( Analog, TakesTheNumberThatATextBeginsWith ) {
    EXPECT_EQ( Loaded( withAttribute( FXO.strPath, "ID", "12abc" ) ).getFxo( 12 ).getId(), 12U );
    EXPECT_EQ( Loaded( withAttribute( FXS.strPath, "regretTimeMs", " 4294967295.9" ) ).getFxs().getRegretTimeMs(),
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
    const std::string strNotify = FXO.strPath + "/inboundCallHandling/notifyOutboundSide";
    const Loaded loaded( { withAttribute( strNotify, "condition", "ON-CALLER-ID" ),
                           withAttribute( ANSWER, "condition", "AFTER-DIALING-DESTINATION-NUMBER" ) } );
    EXPECT_EQ( loaded.getFxo().getInboundCallHandlingConfigHandle()->getNumberOfRings(), 0U );
    EXPECT_EQ( loaded.getOutbound().getDisconnectTimeoutMs(), 0U );
    const Loaded voice( withAttribute( ANSWER, "condition", "ON-VOICE" ) );
    EXPECT_EQ( voice.getOutbound().getDisconnectTimeoutMs(), 9000U );
    EXPECT_EQ( voice.getOutbound().getConnectOnNoRemoteRingTimeoutMs(), 0U );
}

TEST( Analog, HotlineThatIsOffHasNoDelayAndNoNumber ) {
    const std::string strPath = FXS.strPath + "/hotlineDialing";
    for ( const Edit& edit :
          { withAttribute( strPath, "enable", "NO" ), Edit{ getTag( strPath ), "<hotlineDialing enable=\"NO\"/>" } } ) {
        const Loaded loaded( edit );
        EXPECT_FALSE( loaded.getFxs().getHotlineDialingConfigHandle()->isEnabled() );
        EXPECT_EQ( loaded.getFxs().getHotlineDialingConfigHandle()->getDelayBeforeDialingMs(), 0xFFFFFFFFU );
        EXPECT_STREQ( loaded.getFxs().getHotlineDialingConfigHandle()->getDialingNumber(), "" );
    }
}

TEST( Analog, NotifiesNothingUnlessToldTo ) {
    const std::string strPath = FXS.strPath + "/disconnectAnswerNotification";
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

#include <ctime>

#include "ConfigTest.h"
#include "survey/Survey.h"

// The checks over the whole model.

namespace Velquin::Pstn::Test {

PSTN_CASES( CrossCheckCases, readCases( "crosschecks.cases" ) );

TEST( CrossChecks, NameTheElementConcerned ) {
    const TestDocument document(
        std::vector<Edit>{ { "tirpipe=\"11\"", "tirpipe=\"10\"" }, { "tirpipe=\"3\"", "tirpipe=\"0\"" } } );
    const TemporaryFile file( document.getText() );
    std::vector<std::string> vecPlaces;
    const FindingWatch watch( [&]( const Finding& in_finding ) {
        vecPlaces.push_back( in_finding.strFile + ":" + std::to_string( in_finding.ullLine ) + " " +
                             in_finding.strElementPath );
    } );
    XmlConfig config;
    EXPECT_FALSE( load( config, file.getPath(), SCHEMA ).bValid );
    const auto place = [&]( const char* in_szText, const char* in_szPath ) {
        return file.getPath() + ":" + std::to_string( document.getLine( in_szText ) ) + " /pstnConfig/boards/" +
               in_szPath;
    };
    EXPECT_EQ( join( vecPlaces ), join( { place( "\"Phones\"", "tirvanaAnalogBoard[2]" ),
                                          place( "T1-B", "tirvanaDigitalBoard[2]/interface[2]" ) } ) );
}

TEST( CrossChecks, TakeABoardThatStandsInNoFile ) {
    for ( const bool bComplete : { true, false } ) {
        auto* const pBoard = new TirvanaDigitalBoardConfig();
        pBoard->setId( 77 );
        auto* const pInterface = new TirvanaDigitalInterfaceConfig();
        if ( bComplete )
            pInterface->setBoardConfig( pBoard );
        XmlConfig config;
        ASSERT_TRUE( pBoard->addDigitalInterfaceConfig( pInterface ) && config.addDigitalBoardConfig( pBoard ) );
        const std::vector<std::string> vecExpected{
            "ERROR XmlConfig: Digital interface \"b77()di0()\" has not physical configuration. Please make sure to "
            "apply a physical configuration to this interface.",
            "ERROR XmlConfig: Digital Interface \"b77()di0()\" has an already used tirpipe number: 0. Please make sure "
            "every analog board and Digital interface has a unique tirpipe number.",
            "ERROR XmlConfig: Digital interface \"b77()di0()\" has no call-control configuration. Please make sure to "
            "apply a call- control configuration to this interface." };
        EXPECT_EQ(
            join( load( config, COMPLETE, SCHEMA ).vecLines ),
            join( bComplete ? vecExpected : assertions( "XmlConfig: !hInterface->getBoardConfig().isNull()" ) ) );
    }
}

namespace {

/// A document of E1 spans, each with a FAS group of its own but for the last, which has none.
std::string makeSpans( unsigned int in_uSpans ) {
    const std::string strText = TestDocument().getText();
    const std::size_t uAudio = strText.find( "<audio " );
    std::string strBoard;
    std::string strGroups;
    for ( unsigned int u = 0; u < in_uSpans; ++u ) {
        const std::string strId = std::to_string( u );
        strBoard += "<interface ID=\"" + strId + "\" displayName=\"S\" tirpipe=\"" + strId + "\"/>\n";
        if ( u + 1 == in_uSpans )
            break;
        strGroups += "<fasConfig ID=\"" + strId + "\" termination=\"TERMINAL\" switchVariant=\"ETSI\" " +
                     "BChannelNegotiation=\"PREFERRED\"><applyTo><interfaceRef boardID=\"0\" interfaceID=\"" + strId +
                     "\"><BChannelRange channelGroupID=\"g\" firstChannel=\"1\" lastChannel=\"15\"/>" +
                     "</interfaceRef></applyTo></fasConfig>\n";
    }
    return "<pstnConfig version=\"2.3\"><boards><tirvanaDigitalBoard ID=\"0\" displayName=\"B\" model=\"\">" +
           strBoard +
           "</tirvanaDigitalBoard></boards><physicalInterfaceConfigs><tirvanaDigitalConfig ID=\"1\" displayName=\"\">" +
           strText.substr( uAudio, strText.find( "<applyTo>" ) - uAudio ) +
           "<applyTo><interfaceRef boardID=\"0\"/></applyTo></tirvanaDigitalConfig></physicalInterfaceConfigs>" +
           "<callControl><channelGroups><channelGroup ID=\"g\" direction=\"IN\"/></channelGroups><isdn>" + strGroups +
           "</isdn></callControl></pstnConfig>";
}

double measure( unsigned int in_uSpans, const std::function<void( const std::string& )>& in_run ) {
    const TemporaryFile file( makeSpans( in_uSpans ) );
    double dBest = 1e9;
    for ( int n = 0; n < 3; ++n ) {
        const std::clock_t begin = std::clock();
        in_run( file.getPath() );
        dBest = std::min( dBest, static_cast<double>( std::clock() - begin ) );
    }
    return dBest;
}

} // namespace

// Catches a check that asks group after group for every interface: eight times the spans would cost 64 times as much.
TEST( CrossChecks, CostNoMoreThanTheModelIsLarge ) {
    const auto run = []( const std::string& in_strFile ) {
        XmlConfig config;
        EXPECT_EQ( load( config, in_strFile, SCHEMA ).vecLines.size(), 1U ) << "the span without group";
    };
    const double dFew = measure( 2000, run );
    EXPECT_LT( measure( 16000, run ), 20 * dFew );
}

// The same of the advice where it has something to say of every span, also of the places that it looks for.
TEST( Advice, CostsNoMoreThanTheModelIsLarge ) {
    const auto run = []( const std::string& in_strFile ) {
        Survey survey;
        survey.run( in_strFile.c_str(), SCHEMA );
        EXPECT_GT( survey.getFindings().size(), 2U * 1990 );
    };
    const double dFew = measure( 2000, run );
    EXPECT_LT( measure( 16000, run ), 20 * dFew );
}

} // namespace Velquin::Pstn::Test

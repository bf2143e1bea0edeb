#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>

#include <libxml/xpath.h>

#include "ConfigTest.h"
#include "advice/Advice.h"
#include "survey/Survey.h"

// The advice on a model, and the texts of all rules.

namespace Velquin::Pstn::Test {

namespace {

struct AdviceResult {
    bool bValid = false;
    std::vector<Finding> vecAdvice;
};

/// Loads a document, and asks for advice on the model.
AdviceResult adviseOn( const TestDocument& in_document, const std::string& in_strSchema ) {
    AdviceResult result;
    const TemporaryFile file( in_document.getText() );
    XmlConfig config;
    result.bValid = load( config, file.getPath(), in_strSchema ).bValid;
    const XmlDocPtr pDocument( xmlReadFile( file.getPath().c_str(), nullptr, XML_PARSE_NONET ) );
    result.vecAdvice = advise( config, xmlDocGetRootElement( pDocument.get() ) );
    for ( const Finding& finding : result.vecAdvice ) {
        const std::unique_ptr<xmlXPathContext, decltype( &xmlXPathFreeContext )> pContext(
            xmlXPathNewContext( pDocument.get() ), &xmlXPathFreeContext );
        const std::unique_ptr<xmlXPathObject, decltype( &xmlXPathFreeObject )> pFound(
            xmlXPathEvalExpression( toXml( finding.strElementPath.c_str() ), pContext.get() ), &xmlXPathFreeObject );
        const bool bOne = pFound && pFound->nodesetval && pFound->nodesetval->nodeNr == 1;
        EXPECT_TRUE( bOne ) << finding.strElementPath;
        if ( bOne ) {
            EXPECT_EQ( xmlGetLineNo( pFound->nodesetval->nodeTab[0] ), static_cast<long>( finding.ullLine ) );
        }
    }
    return result;
}

std::string describe( const Finding& in_finding ) {
    std::string strText = std::to_string( in_finding.ullLine ) +
                          ( in_finding.nLevel == Logger::INFO_LEVEL ? ": note: " : ": " ) +
                          describeFinding( in_finding );
    for ( const Finding::Related& related : in_finding.vecRelated )
        strText += " | " + related.strLabel + " " + std::to_string( related.ullLine );
    return strText;
}

/// The advice that the unchanged document gives, without lines.
const std::set<std::string>& getUsualAdvice() {
    static const std::set<std::string> s_setAdvice = [] {
        std::set<std::string> setAdvice;
        for ( const Finding& finding : adviseOn( {}, SCHEMA ).vecAdvice )
            setAdvice.insert( finding.strElementPath + describeFinding( finding ) );
        return setAdvice;
    }();
    return s_setAdvice;
}

std::string describeRules() {
    std::string strText =
        "# Rules\n\nWhat can be wrong with a configuration. `pstnconfig check` names the rule behind "
        "each finding. The tests write this page\nfrom the texts of the library:\n"
        "`PSTN_TEST_WRITE=1 build/release/bin/pstn-config-tests --gtest_filter=Rules.*`.\n\n"
        "A fault keeps the gateway from loading the file, or from taking a part of it. With a warning "
        "it loads, and something\nwill not work as meant. A note is worth a look.\n";
    constexpr const char* SEVERITIES[] = { "fault", "warning", "note" };
    for ( const Rule& rule : getRules() )
        strText += std::string( "\n## " ) + rule.szName + "\n\n*" + SEVERITIES[static_cast<int>( rule.eSeverity )] +
                   ":* " + rule.szTitle + "\n\n" +
                   std::regex_replace( std::regex_replace( rule.szExplanation, std::regex( "&" ), "&amp;" ),
                                       std::regex( "<" ), "&lt;" ) +
                   "\n";
    return strText;
}

} // namespace

TEST( Advice, HasACaseThatFiresEachRuleAndOneThatDoesNot ) {
    std::map<std::string, std::set<std::string>> mapCases;
    for ( const Record& record : readRecords( "advice.cases", "@>" ) ) {
        SCOPED_TRACE( record.strHead );
        const bool bFires = record.vecWords[0] == "fire";
        const std::string& strRule = record.vecWords[1];
        const TestDocument document( record.vecEdits );
        const AdviceResult result = adviseOn( document, SCHEMA );
        // A sequence that can't be read is against the schema.
        const bool bValid = result.bValid || adviseOn( document, ANY_SCHEMA ).bValid;
        EXPECT_TRUE( bValid );
        std::vector<std::string> vecNew;
        for ( const Finding& finding : result.vecAdvice ) {
            const bool bUsual = getUsualAdvice().contains( finding.strElementPath + describeFinding( finding ) );
            if ( !bUsual && ( bFires || finding.strRule == strRule ) )
                vecNew.push_back( finding.strRule + " " + describe( finding ) );
        }
        const std::string strExpected =
            bFires ? strRule + " " + document.expand( record.mapLines.at( '>' ).at( 0 ), "" ) : "";
        EXPECT_EQ( join( vecNew ), bFires ? join( { strExpected } ) : "" );
        mapCases[strRule].insert( record.vecWords[0] );
    }
    for ( const Rule& rule : getAdviceRules() )
        EXPECT_EQ( mapCases[rule.szName], ( std::set<std::string>{ "fire", "near" } ) ) << rule.szName;
}

TEST( Advice, HasNothingToSayOfTheExamples ) {
    for ( const auto& entry : std::filesystem::directory_iterator( EXAMPLES_FOLDER ) ) {
        if ( entry.path().extension() != ".xml" )
            continue;
        for ( const Finding& finding : adviseOn( TestDocument( readFile( entry.path().string() ) ), SCHEMA ).vecAdvice )
            ADD_FAILURE() << entry.path() << ":" << describe( finding );
    }
}

// What can be read of a wrong file is a model with missing parts.
TEST( Advice, TakesEveryModelAndNamesOnlyRulesThatAreThere ) {
    for ( const auto& entry : std::filesystem::directory_iterator( DATA_FOLDER + "/cases" ) ) {
        if ( entry.path().extension() != ".cases" )
            continue;
        for ( const Case& one : readCases( entry.path().filename().string() ) ) {
            SCOPED_TRACE( one.strName );
            const TemporaryFile file( TestDocument( one.vecEdits ).getText() );
            Survey survey;
            survey.run( file.getPath().c_str(), one.strSchema.c_str() );
            for ( const Finding& finding : survey.getFindings() )
                EXPECT_TRUE( finding.strRule.empty() || findRule( finding.strRule ) ) << finding.strRule;
        }
    }
}

// Parts of a file that are wrong leave gaps in the model, which are no mistakes of their own.
TEST( Advice, SaysNothingThatOnlyFollowsFromAFault ) {
    for ( const std::vector<Edit>& vecEdits : std::vector<std::vector<Edit>>{
              { { "/BChannelRange[5]", "lastChannel=\"x\"" } }, // channel-unused
              { { "/fasConfig/applyTo/interfaceRef/BChannelRange", "-" },
                { "/fasConfig/applyTo/interfaceRef/BChannelRange", "-" } },
              { { "/member[1]", "nfasInterfaceID=\"x\"" } }, // nfas-primary
              { { "/fasConfig", "ID=\"x\"" } },              // group-empty
              { { "/detector", "-name" }, { "/ringCadenceDetector", "active=\"NO\" -ringCadenceOffDelayMs" } },
          } ) {
        const TemporaryFile file( TestDocument( vecEdits ).getText() );
        Survey survey;
        EXPECT_FALSE( survey.run( file.getPath().c_str(), SCHEMA ) );
        for ( const Finding& finding : survey.getFindings() )
            EXPECT_TRUE( finding.nLevel == Logger::ERROR_LEVEL ||
                         getUsualAdvice().contains( finding.strElementPath + describeFinding( finding ) ) )
                << vecEdits[0].strFrom << " " << describe( finding );
    }
}

TEST( Rules, AreThoseOfTheLoadInTheirOrderAndThenTheAdvice ) {
    static const std::regex s_constant( R"re(constexpr const char\* \w+ = "([^"]+)";)re" );
    const std::string strNames = readFile( DATA_FOLDER + "/../../src/RuleNames.h" );
    std::vector<std::string> vecNames;
    for ( std::sregex_iterator it( strNames.begin(), strNames.end(), s_constant ), end; it != end; ++it )
        vecNames.push_back( ( *it )[1] );
    for ( const Rule& rule : getAdviceRules() )
        vecNames.push_back( rule.szName );
    std::vector<std::string> vecRules;
    for ( const Rule& rule : getRules() ) {
        vecRules.push_back( rule.szName );
        EXPECT_EQ( findRule( rule.szName ), &rule );
        EXPECT_FALSE( std::string_view( rule.szTitle ).ends_with( '.' ) ) << rule.szTitle;
        EXPECT_TRUE( std::string_view( rule.szExplanation ).ends_with( '.' ) ) << rule.szExplanation;
    }
    EXPECT_EQ( join( vecRules ), join( vecNames ) );
    EXPECT_EQ( findRule( "no-such-rule" ), nullptr );
}

TEST( Rules, StandInTheirPage ) {
    const std::string strFile = EXAMPLES_FOLDER + "/../docs/rules.md";
    if ( std::getenv( "PSTN_TEST_WRITE" ) )
        std::ofstream( strFile, std::ios::binary ) << describeRules();
    EXPECT_EQ( readFile( strFile ), describeRules() );
}

} // namespace Velquin::Pstn::Test

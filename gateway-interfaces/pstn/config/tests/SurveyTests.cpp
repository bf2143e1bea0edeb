#include <algorithm>

#include "ConfigTest.h"
#include "survey/Survey.h"

// What a survey finds in wrong files: each mistake, once, at its line.

namespace Velquin::Pstn::Test {

namespace {

struct SurveyResult {
    bool bLoads = false;
    std::vector<Finding> vecMistakes; ///< errors that are no echoes
    std::string strText;              ///< all that was found, for messages
};

SurveyResult survey( const std::string& in_strText, const std::string& in_strSchema = SCHEMA ) {
    const TemporaryFile file( in_strText );
    SurveyResult result;
    const Velquin::Test::LogCapture quiet( Logger::ERROR_LEVEL );
    Survey survey;
    result.bLoads = survey.run( file.getPath().c_str(), in_strSchema.c_str() );
    for ( const Finding& finding : survey.getFindings() ) {
        result.strText += std::to_string( finding.span.ullLine ) + ( finding.bEcho ? ": echo: " : ": " ) +
                          finding.strRule + ": " + describeFinding( finding ) + "\n";
        if ( !finding.bEcho && finding.nLevel >= Logger::ERROR_LEVEL )
            result.vecMistakes.push_back( finding );
    }
    return result;
}

/// A mistake that is made, and how it must be reported.
struct Mistake {
    std::string strRule;
    std::string strWords;
    std::string strPlace = "{line}";
    std::vector<Edit> vecEdits;
};

std::vector<Mistake> readMistakes() {
    std::vector<Mistake> vecMistakes;
    for ( const Record& record : readRecords( "mistakes.rows", "@" ) ) {
        Mistake mistake{ record.vecWords[1], record.strHead.substr( 9 + record.vecWords[1].size() ), "{line}",
                         record.vecEdits };
        if ( const std::size_t uAt = mistake.strWords.rfind( " at /" ); uAt != std::string::npos ) {
            mistake.strPlace = "{line:" + mistake.strWords.substr( uAt + 4 ) + "}";
            mistake.strWords.erase( uAt );
        }
        vecMistakes.push_back( mistake );
    }
    return vecMistakes;
}

void expectOne( const SurveyResult& in_result, const std::string& in_strLine, const std::string& in_strRule,
                const std::string& in_strWords ) {
    ASSERT_EQ( in_result.vecMistakes.size(), 1U ) << in_result.strText;
    const Finding& finding = in_result.vecMistakes[0];
    EXPECT_EQ( in_strLine, in_strLine.empty() ? "" : std::to_string( finding.span.ullLine ) ) << in_result.strText;
    EXPECT_THAT( describeFinding( finding ), testing::HasSubstr( in_strWords ) );
    EXPECT_EQ( finding.strRule, in_strRule.empty() ? finding.strRule : in_strRule );
}

} // namespace

TEST( Survey, FindsEachSingleMistakeOnce ) {
    for ( const Mistake& mistake : readMistakes() ) {
        SCOPED_TRACE( mistake.vecEdits[0].strFrom + " " + mistake.vecEdits[0].strTo );
        const TestDocument document( mistake.vecEdits );
        expectOne( survey( document.getText() ), document.expand( mistake.strPlace, "" ), mistake.strRule,
                   mistake.strWords );
    }
}

TEST( Survey, FindsEachMissingOrWrongAttributeOnce ) {
    unsigned int uMistakes = 0;
    for ( const char* const szFile :
          { "hardware.cases", "physical.cases", "callcontrol.cases", "isdn.cases", "analog.cases", "schema.cases" } ) {
        for ( const Case& one : readCases( szFile ) ) {
            const bool bMissing = one.strName.ends_with( "Missing" );
            if ( one.vecEdits.size() != 1 || ( !bMissing && !one.strName.ends_with( "Wrong" ) ) )
                continue;
            SCOPED_TRACE( one.strName );
            const TestDocument document( one.vecEdits );
            const SurveyResult result = survey( document.getText() );
            if ( result.bLoads )
                continue; // the case is about readers behind another schema
            const bool bOfParent = one.vecEdits[0].strTo == "-";
            expectOne( result, bOfParent ? "" : document.expand( "{line}", "" ), "", "" );
            ++uMistakes;
        }
    }
    EXPECT_GE( uMistakes, 200U );
}

} // namespace Velquin::Pstn::Test

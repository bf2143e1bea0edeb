#pragma once

#include <set>
#include <string>
#include <vector>

#include "ConfigTest.h"
#include "survey/Survey.h"

namespace Velquin::Pstn::Test {

/// What a survey said of a document that is made of complete.xml.
struct SurveyResult {
    bool bLoads = false;
    std::vector<Finding> vecMistakes; ///< errors, and advice that complete.xml doesn't get
    std::string strText;              ///< all that was found, for messages
};

inline std::string describeAdvice( const Finding& in_finding ) {
    return in_finding.strRule + ": " + describeFinding( in_finding );
}

inline const std::set<std::string>& getOwnAdvice() {
    static const std::set<std::string> s_setAdvice = [] {
        std::set<std::string> setAdvice;
        Survey survey;
        EXPECT_TRUE( survey.run( COMPLETE.c_str(), SCHEMA ) );
        for ( const Finding& finding : survey.getFindings() )
            setAdvice.insert( describeAdvice( finding ) );
        return setAdvice;
    }();
    return s_setAdvice;
}

inline SurveyResult survey( const std::string& in_strText, const std::string& in_strSchema = SCHEMA ) {
    const TemporaryFile file( in_strText );
    SurveyResult result;
    const Velquin::Test::LogCapture quiet( Logger::ERROR_LEVEL );
    Survey survey;
    result.bLoads = survey.run( file.getPath().c_str(), in_strSchema.c_str() );
    for ( const Finding& finding : survey.getFindings() ) {
        result.strText += std::to_string( finding.span.ullLine ) + ( finding.bEcho ? ": echo: " : ": " ) +
                          finding.strRule + ": " + describeFinding( finding ) + "\n";
        if ( !finding.bEcho && !getOwnAdvice().contains( describeAdvice( finding ) ) )
            result.vecMistakes.push_back( finding );
    }
    return result;
}

} // namespace Velquin::Pstn::Test

#include "RuleHelp.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <string_view>

#include <velquin/pstn/Suggestion.h>

using Velquin::Pstn::getRules;
using Velquin::Pstn::Rule;
using Velquin::Pstn::Severity;

std::string describeUnknownRule( const std::string& in_strName ) {
    std::vector<std::string> vecNames;
    for ( const Rule& rule : getRules() )
        vecNames.emplace_back( rule.szName );
    const std::string strNearest = Velquin::Pstn::findNearest( in_strName, vecNames );
    return "unknown rule \"" + in_strName + "\"; " +
           ( strNearest.empty() ? "--list-rules lists them" : "did you mean \"" + strNearest + "\"?" );
}

const char* getSeverityName( Severity in_eSeverity ) {
    return in_eSeverity == Severity::FAULT ? "error" : in_eSeverity == Severity::WARNING ? "warning" : "note";
}

void listRules( std::ostream& inout_stream ) {
    std::size_t uWidth = 0;
    for ( const Rule& rule : getRules() )
        uWidth = std::max( uWidth, std::string_view( rule.szName ).size() );
    for ( const Rule& rule : getRules() )
        inout_stream << std::left << std::setw( static_cast<int>( uWidth + 2 ) ) << rule.szName << std::setw( 9 )
                     << getSeverityName( rule.eSeverity ) << rule.szTitle << '\n';
}

void explainRule( std::ostream& inout_stream, const Rule& in_rule, std::size_t in_uWidth ) {
    inout_stream << in_rule.szName << " (" << getSeverityName( in_rule.eSeverity ) << "): " << in_rule.szTitle
                 << "\n\n";
    std::istringstream words( in_rule.szExplanation );
    std::string strWord;
    std::size_t uColumn = 0;
    while ( words >> strWord ) {
        const bool bFits = uColumn + 1 + strWord.size() <= in_uWidth;
        inout_stream << ( uColumn == 0 ? "" : bFits ? " " : "\n" ) << strWord;
        uColumn = bFits && uColumn > 0 ? uColumn + 1 + strWord.size() : strWord.size();
    }
    inout_stream << '\n';
}

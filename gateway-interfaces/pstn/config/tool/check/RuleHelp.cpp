#include "RuleHelp.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <string_view>

#include <velquin/pstn/Suggestion.h>

using Velquin::Pstn::Rule;
using Velquin::Pstn::Severity;

const std::vector<Rule>& getAllRules() {
    static const std::vector<Rule> s_vecRules = [] {
        const auto rules = Velquin::Pstn::getRules();
        std::vector<Rule> vecRules( rules.begin(), rules.end() );
        vecRules.push_back(
            { UNKNOWN_PARAMETER, Severity::WARNING, "the gateway has no parameter of that name",
              "The gateway ignores a parameter that it doesn't know, and goes on without it: it doesn't find its PSTN "
              "configuration, or takes an old one. Mostly the name is misspelt. Correct it in the parameter file; "
              "upper and lower case count." } );
        return vecRules;
    }();
    return s_vecRules;
}

const Rule* findAnyRule( const std::string& in_strName ) {
    const std::vector<Rule>& vecRules = getAllRules();
    const auto it = std::find_if( vecRules.begin(), vecRules.end(),
                                  [&]( const Rule& in_rule ) { return in_strName == in_rule.szName; } );
    return it == vecRules.end() ? nullptr : &*it;
}

std::string describeUnknownRule( const std::string& in_strName ) {
    std::vector<std::string> vecNames;
    for ( const Rule& rule : getAllRules() )
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
    for ( const Rule& rule : getAllRules() )
        uWidth = std::max( uWidth, std::string_view( rule.szName ).size() );
    for ( const Rule& rule : getAllRules() )
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

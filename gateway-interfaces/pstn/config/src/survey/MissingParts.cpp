#include "survey/MissingParts.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <string>
#include <utility>

#include "RuleNames.h"

namespace Velquin::Pstn {

namespace {

/// The names as a list, "a, b and c", which the finding's words put into quotes.
std::string joinNames( const std::vector<SurveyedFinding*>& in_vecItems ) {
    std::string strNames;
    for ( const SurveyedFinding* const pItem : in_vecItems )
        strNames.append( strNames.empty()              ? ""
                         : pItem == in_vecItems.back() ? " and "
                                                       : ", " )
            .append( pItem->finding.strAttribute );
    return strNames;
}

/// What is right for each of them, or for all.
std::string joinHints( const std::vector<SurveyedFinding*>& in_vecItems ) {
    const std::string& strFirst = in_vecItems.front()->finding.strHint;
    if ( std::all_of( in_vecItems.begin(), in_vecItems.end(), [&strFirst]( const SurveyedFinding* in_pItem ) {
             return in_pItem->finding.strHint == strFirst;
         } ) )
        return strFirst;
    std::string strHints;
    for ( const SurveyedFinding* const pItem : in_vecItems ) {
        std::string strHint = pItem->finding.strHint;
        if ( strHint.empty() )
            continue;
        strHint[0] = static_cast<char>( std::tolower( static_cast<unsigned char>( strHint[0] ) ) );
        strHints.append( strHints.empty() ? "" : "; " )
            .append( pItem->finding.strAttribute + ": " )
            .append( strHint, 0, strHint.find_last_not_of( " ." ) + 1 );
    }
    return strHints;
}

} // namespace

void joinMissingParts( SurveyRecord& inout_record ) {
    std::map<std::pair<const xmlNode*, Finding::Kind>, std::vector<SurveyedFinding*>> mapMissing;
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        const Finding::Kind eKind = item.finding.eKind;
        if ( item.isMain() && item.pElement &&
             ( eKind == Finding::Kind::MISSING_ATTRIBUTE || eKind == Finding::Kind::MISSING_ELEMENT ) )
            mapMissing[{ item.pElement, eKind }].push_back( &item );
    }
    for ( auto& [what, vecItems] : mapMissing ) {
        if ( vecItems.size() == 1 )
            continue;
        Finding& first = vecItems.front()->finding;
        std::string strHints = joinHints( vecItems );
        first.strAttribute = joinNames( vecItems );
        first.strHint = std::move( strHints );
        std::for_each( vecItems.begin() + 1, vecItems.end(),
                       []( SurveyedFinding* in_pItem ) { in_pItem->finding.bEcho = true; } );
    }
}

} // namespace Velquin::Pstn

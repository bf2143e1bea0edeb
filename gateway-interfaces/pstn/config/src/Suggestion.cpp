#include "Suggestion.h"

#include <algorithm>
#include <cctype>

namespace Velquin::Pstn {

namespace {

constexpr std::size_t MAX_DISTANCE = 2;
constexpr std::size_t MAX_LISTED = 12;

bool isSame( char in_cX, char in_cY ) {
    return std::tolower( static_cast<unsigned char>( in_cX ) ) == std::tolower( static_cast<unsigned char>( in_cY ) );
}

/// The distance of Damerau and Levenshtein (without overlapping swaps), or something above MAX_DISTANCE.
std::size_t getDistance( std::string_view in_strX, std::string_view in_strY ) {
    if ( std::max( in_strX.size(), in_strY.size() ) - std::min( in_strX.size(), in_strY.size() ) > MAX_DISTANCE )
        return MAX_DISTANCE + 1;
    std::vector<std::vector<std::size_t>> vecRows( in_strX.size() + 1, std::vector<std::size_t>( in_strY.size() + 1 ) );
    for ( std::size_t x = 0; x <= in_strX.size(); ++x ) {
        for ( std::size_t y = 0; y <= in_strY.size(); ++y ) {
            if ( x == 0 || y == 0 ) {
                vecRows[x][y] = x + y;
                continue;
            }
            const bool bSame = isSame( in_strX[x - 1], in_strY[y - 1] );
            vecRows[x][y] =
                std::min( { vecRows[x - 1][y] + 1, vecRows[x][y - 1] + 1, vecRows[x - 1][y - 1] + ( bSame ? 0 : 1 ) } );
            if ( x > 1 && y > 1 && isSame( in_strX[x - 1], in_strY[y - 2] ) &&
                 isSame( in_strX[x - 2], in_strY[y - 1] ) )
                vecRows[x][y] = std::min( vecRows[x][y], vecRows[x - 2][y - 2] + 1 );
        }
    }
    return vecRows.back().back();
}

} // namespace

std::string findNearest( std::string_view in_strText, std::span<const std::string> in_candidates ) {
    const std::string* pNearest = nullptr;
    // A short name has too many neighbours.
    std::size_t uLeast = std::min( MAX_DISTANCE, in_strText.size() / 2 ) + 1;
    for ( const std::string& strCandidate : in_candidates ) {
        const std::size_t uDistance = getDistance( in_strText, strCandidate );
        if ( uDistance < uLeast ) {
            uLeast = uDistance;
            pNearest = &strCandidate;
        }
    }
    return pNearest ? *pNearest : std::string();
}

std::string describeNames( std::string_view in_strText, std::span<const std::string> in_names ) {
    if ( const std::string strNearest = findNearest( in_strText, in_names ); !strNearest.empty() )
        return "did you mean \"" + strNearest + "\"?";
    if ( in_names.empty() )
        return "nothing is expected here";
    if ( in_names.size() == 1 )
        return "expected \"" + in_names[0] + "\"";
    std::string strText = "expected ";
    for ( std::size_t u = 0; u < std::min( in_names.size(), MAX_LISTED ); ++u )
        strText.append( u == 0 ? "" : u + 1 == in_names.size() ? " or " : ", " ).append( in_names[u] );
    return in_names.size() > MAX_LISTED ? strText + " ..." : strText;
}

} // namespace Velquin::Pstn

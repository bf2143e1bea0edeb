#include "Printable.h"

#include <algorithm>

namespace {

bool isFollowing( char in_c ) {
    return ( static_cast<unsigned char>( in_c ) & 0xc0U ) == 0x80U;
}

/// Length of the UTF-8 character at the front of the text.
std::size_t firstLength( std::string_view in_strText ) {
    const auto it = std::find_if_not( in_strText.begin() + 1, in_strText.end(), isFollowing );
    return static_cast<std::size_t>( it - in_strText.begin() );
}

/// Whether the bytes are one UTF-8 character that acts instead of being shown.
bool acts( std::string_view in_strCharacter ) {
    if ( in_strCharacter.size() == 1 )
        return static_cast<unsigned char>( in_strCharacter[0] ) < 0x20 || in_strCharacter[0] == 0x7f;
    const auto isBetween = [in_strCharacter]( std::string_view in_strFirst, std::string_view in_strLast ) {
        return in_strFirst <= in_strCharacter && in_strCharacter <= in_strLast;
    };
    return isBetween( "\xc2\x80", "\xc2\x9f" ) ||         // C1 controls
           isBetween( "\xe2\x80\x8e", "\xe2\x80\x8f" ) || // direction marks
           isBetween( "\xe2\x80\xa8", "\xe2\x80\xae" ) || // line and paragraph separator, embeddings, overrides
           isBetween( "\xe2\x81\xa6", "\xe2\x81\xa9" );   // isolates
}

} // namespace

std::string printable( std::string_view in_strText ) {
    std::string strPrintable;
    while ( !in_strText.empty() ) {
        const std::string_view strCharacter = in_strText.substr( 0, firstLength( in_strText ) );
        strPrintable += acts( strCharacter ) ? "?" : strCharacter;
        in_strText.remove_prefix( strCharacter.size() );
    }
    return strPrintable;
}

std::string escapeMarkup( std::string_view in_strText ) {
    std::string strEscaped;
    for ( const char c : in_strText ) {
        switch ( c ) {
        case '&':
            strEscaped += "&amp;";
            break;
        case '<':
            strEscaped += "&lt;";
            break;
        case '>':
            strEscaped += "&gt;";
            break;
        case '"':
            strEscaped += "&quot;";
            break;
        default:
            strEscaped += c;
        }
    }
    return strEscaped;
}

std::string shorten( const std::string& in_strText, std::size_t in_uCharacters ) {
    std::size_t uSeen = 0;
    std::size_t uKept = 0; // bytes that leave room for the mark
    for ( std::size_t u = 0; u < in_strText.size(); ++u ) {
        if ( isFollowing( in_strText[u] ) )
            continue;
        if ( ++uSeen == in_uCharacters )
            uKept = u;
    }
    return uSeen <= in_uCharacters ? in_strText : in_strText.substr( 0, uKept ) + "…";
}

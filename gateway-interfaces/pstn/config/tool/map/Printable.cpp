#include "Printable.h"

#include <algorithm>
#include <iterator>

namespace {

bool isFollowing( char in_c ) {
    return ( static_cast<unsigned char>( in_c ) & 0xc0U ) == 0x80U;
}

/// Length of the UTF-8 character at the front of the text.
std::size_t firstLength( std::string_view in_strText ) {
    const auto it = std::find_if_not( in_strText.begin() + 1, in_strText.end(), isFollowing );
    return static_cast<std::size_t>( it - in_strText.begin() );
}

/// Characters that act instead of being shown.
struct CodePoints {
    char32_t cFirst;
    char32_t cLast;
};
constexpr CodePoints ACTING[] = {
    { 0x00, 0x1f },     // C0 controls
    { 0x7f, 0x9f },     // delete and C1 controls
    { 0x200e, 0x200f }, // direction marks
    { 0x2028, 0x202e }, // line and paragraph separator, embeddings, overrides
    { 0x2066, 0x2069 }, // isolates
};

/// Length of a character with that first byte; 0 for a byte that begins none.
std::size_t getLength( unsigned char in_byteFirst ) {
    return in_byteFirst < 0x80 ? 1 : in_byteFirst >= 0xf0 ? 4 : in_byteFirst >= 0xe0 ? 3 : in_byteFirst >= 0xc0 ? 2 : 0;
}

/// Whether the character acts, or is none at all: the name of a file may be no UTF-8.
bool acts( std::string_view in_strCharacter ) {
    if ( in_strCharacter.size() != getLength( static_cast<unsigned char>( in_strCharacter[0] ) ) )
        return true;
    // The first byte tells the length by its upper bits. The others have six bits each.
    char32_t c = static_cast<unsigned char>( in_strCharacter[0] );
    if ( in_strCharacter.size() > 1 )
        c &= 0x7fU >> in_strCharacter.size();
    for ( const char cFollowing : in_strCharacter.substr( 1 ) )
        c = ( c << 6U ) | ( static_cast<unsigned char>( cFollowing ) & 0x3fU );
    return std::any_of( std::begin( ACTING ), std::end( ACTING ),
                        [c]( const CodePoints& in_points ) { return in_points.cFirst <= c && c <= in_points.cLast; } );
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

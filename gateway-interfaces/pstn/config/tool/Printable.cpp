#include "Printable.h"

#include "Cell.h"

std::string printable( std::string_view in_strText ) {
    std::string strPrintable;
    while ( !in_strText.empty() ) {
        const Cell cell = getFirstCell( in_strText );
        strPrintable += cell.strShown;
        in_strText.remove_prefix( cell.uBytes );
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
        if ( isContinuation( in_strText[u] ) )
            continue;
        if ( ++uSeen == in_uCharacters )
            uKept = u;
    }
    return uSeen <= in_uCharacters ? in_strText : in_strText.substr( 0, uKept ) + "…";
}

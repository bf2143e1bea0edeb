#include "document/SourceText.h"

#include <algorithm>
#include <iterator>

#include <libxml/encoding.h>
#include <velquin/InputFile.h>

namespace Velquin::Pstn {

namespace {

constexpr std::string_view BLANKS = " \t\r\n";

using XmlBufferPtr = std::unique_ptr<xmlBuffer, LibXml2Deleter<xmlBuffer, xmlBufferFree>>;

/// The text in UTF-8, as far as it can be converted.
std::string toUtf8( std::string in_strText, const char* in_szEncoding ) {
    if ( in_strText.starts_with( "\xEF\xBB\xBF" ) )
        return in_strText.substr( 3 );
    const bool bLittleEndian = in_strText.starts_with( "\xFF\xFE" );
    if ( bLittleEndian || in_strText.starts_with( "\xFE\xFF" ) ) {
        in_strText.erase( 0, 2 );
        in_szEncoding = bLittleEndian ? "UTF-16LE" : "UTF-16BE";
    } else if ( in_strText.starts_with( std::string_view( "\0<\0?", 4 ) ) ) {
        in_szEncoding = "UTF-16BE"; // what it declares doesn't say in which order the bytes stand
    }
    if ( !in_szEncoding || xmlParseCharEncoding( in_szEncoding ) == XML_CHAR_ENCODING_UTF8 )
        return in_strText;
    xmlCharEncodingHandler* const pHandler = xmlFindCharEncodingHandler( in_szEncoding );
    const XmlBufferPtr pIn( xmlBufferCreate() );
    const XmlBufferPtr pOut( xmlBufferCreate() );
    if ( pHandler && pIn && pOut &&
         xmlBufferAdd( pIn.get(), toXml( in_strText.data() ), static_cast<int>( in_strText.size() ) ) == 0 ) {
        while ( xmlBufferLength( pIn.get() ) > 0 && xmlCharEncInFunc( pHandler, pOut.get(), pIn.get() ) > 0 )
            ; // one call converts a part
        in_strText.assign( fromXml( xmlBufferContent( pOut.get() ) ),
                           static_cast<std::size_t>( xmlBufferLength( pOut.get() ) ) );
    }
    if ( pHandler )
        xmlCharEncCloseFunc( pHandler );
    return in_strText;
}

/// Number of characters of a text in UTF-8.
std::size_t countCharacters( std::string_view in_strText ) {
    return static_cast<std::size_t>( std::count_if( in_strText.begin(), in_strText.end(), []( char in_c ) {
        return ( static_cast<unsigned char>( in_c ) & 0xC0 ) != 0x80;
    } ) );
}

} // namespace

void SourceText::read( const char* in_szPath, const char* in_szEncoding ) {
    std::ifstream stream;
    if ( !openInputFile( in_szPath, stream ).empty() )
        return;
    m_strText = toUtf8( { std::istreambuf_iterator<char>( stream ), {} }, in_szEncoding );
    m_vecLines.push_back( 0 );
    for ( std::size_t u = m_strText.find( '\n' ); u != std::string::npos; u = m_strText.find( '\n', u + 1 ) )
        m_vecLines.push_back( u + 1 );
}

std::string_view SourceText::getLine( unsigned long long in_ullLine ) const noexcept {
    if ( in_ullLine == 0 || in_ullLine > m_vecLines.size() )
        return {};
    const std::size_t uBegin = m_vecLines[in_ullLine - 1];
    const std::size_t uEnd = std::min( m_strText.find( '\n', uBegin ), m_strText.size() );
    const std::string_view strLine( m_strText.data() + uBegin, uEnd - uBegin );
    return strLine.substr( 0, strLine.find_last_not_of( '\r' ) + 1 );
}

void SourceText::locate( std::vector<Place> in_vecPlaces ) const {
    std::stable_sort( in_vecPlaces.begin(), in_vecPlaces.end(),
                      []( const Place& in_x, const Place& in_y ) { return in_x.ullElement < in_y.ullElement; } );
    const Place* pPlace = in_vecPlaces.data();
    const Place* const pEnd = pPlace + in_vecPlaces.size();
    const bool bTexts =
        std::any_of( in_vecPlaces.begin(), in_vecPlaces.end(), []( auto& in_p ) { return in_p.bText; } );
    unsigned long long ullElement = 0;
    std::vector<unsigned long long> vecOpen;
    for ( std::size_t u = m_strText.find( '<' ); u < m_strText.size() && ( pPlace != pEnd || bTexts );
          u = m_strText.find( '<', u ) ) {
        if ( isMarkup( u ) ) {
            const bool bEndTag = m_strText[u + 1] == '/';
            u = skipMarkup( u );
            if ( bEndTag && !vecOpen.empty() )
                vecOpen.pop_back();
        } else {
            ++ullElement;
            const Place* const pFirst = pPlace;
            while ( pPlace != pEnd && pPlace->ullElement <= ullElement )
                ++pPlace;
            u = locateTag( u, pFirst, pPlace );
            vecOpen.push_back( ullElement );
            if ( m_strText[u - 1] == '/' ) {
                vecOpen.pop_back();
                u = std::min( u + 1, m_strText.size() );
            }
        }
        if ( bTexts && !vecOpen.empty() )
            locateText( u, vecOpen.back(), in_vecPlaces );
    }
}

SourceSpan SourceText::findUnfinished( Unfinished in_eWhat, unsigned long long in_ullLastLine ) const {
    const std::size_t uEnd = in_ullLastLine < m_vecLines.size() ? m_vecLines[in_ullLastLine] : m_strText.size();
    for ( std::size_t uBegin = m_strText.find( '<' ); uBegin < uEnd; uBegin = m_strText.find( '<', uBegin ) ) {
        if ( in_eWhat == Unfinished::COMMENT && m_strText.compare( uBegin, 4, "<!--" ) == 0 ) {
            const std::size_t uHyphens = m_strText.find( "--", uBegin + 4 );
            if ( uHyphens == std::string::npos || m_strText.compare( uHyphens, 3, "-->" ) != 0 )
                return getSpan( uBegin, uBegin + 4 );
        }
        if ( isMarkup( uBegin ) ) {
            uBegin = skipMarkup( uBegin );
            continue;
        }
        std::size_t u = m_strText.find_first_of( "<>\"'", uBegin + 1 );
        for ( ; u < m_strText.size() && ( m_strText[u] == '"' || m_strText[u] == '\'' );
              u = m_strText.find_first_of( "<>\"'", u + 1 ) ) {
            const char szEnds[] = { m_strText[u], '<', '\0' };
            const std::size_t uClose = std::min( m_strText.find_first_of( szEnds, u + 1 ), m_strText.size() );
            if ( uClose == m_strText.size() || m_strText[uClose] == '<' )
                return in_eWhat == Unfinished::VALUE ? getSpan( u, uClose ) : SourceSpan{};
            u = uClose;
        }
        u = std::min( u, m_strText.size() );
        if ( in_eWhat == Unfinished::START_TAG && ( u == m_strText.size() || m_strText[u] == '<' ) ) {
            const std::size_t uLast = m_strText.find_last_not_of( BLANKS, u - 1 );
            return getSpan( uLast, uLast + 1 );
        }
        uBegin = u;
    }
    return {};
}

bool SourceText::isMarkup( std::size_t in_uBegin ) const {
    const std::string_view strRest = std::string_view( m_strText ).substr( in_uBegin + 1 );
    return !strRest.empty() && std::string_view( "!?/" ).find( strRest[0] ) != std::string_view::npos;
}

/// Sets the next text place of an element to the line of text that begins there, if one does.
void SourceText::locateText( std::size_t in_uBegin, unsigned long long in_ullElement,
                             std::vector<Place>& inout_vecPlaces ) const {
    const std::size_t uBegin = skipBlanks( in_uBegin );
    if ( uBegin == m_strText.size() || m_strText[uBegin] == '<' )
        return;
    auto it = std::lower_bound(
        inout_vecPlaces.begin(), inout_vecPlaces.end(), in_ullElement,
        []( const Place& in_place, unsigned long long in_ull ) { return in_place.ullElement < in_ull; } );
    while ( it != inout_vecPlaces.end() && it->ullElement == in_ullElement && !it->bText )
        ++it;
    if ( it == inout_vecPlaces.end() || it->ullElement != in_ullElement )
        return;
    it->bText = false;
    const std::size_t uEnd = std::min( m_strText.find_first_of( "<\r\n", uBegin ), m_strText.size() );
    *it->pSpan = getSpan( uBegin, m_strText.find_last_not_of( BLANKS, uEnd - 1 ) + 1 );
}

/// @return where the search for the next tag goes on
std::size_t SourceText::skipMarkup( std::size_t in_uBegin ) const {
    const std::string_view strRest = std::string_view( m_strText ).substr( in_uBegin );
    const auto skip = [&]( std::string_view in_strEnd ) {
        const std::size_t uEnd = strRest.find( in_strEnd );
        return uEnd == std::string_view::npos ? m_strText.size() : in_uBegin + uEnd + in_strEnd.size();
    };
    if ( strRest.starts_with( "<!--" ) )
        return skip( "-->" );
    if ( strRest.starts_with( "<![CDATA[" ) )
        return skip( "]]>" );
    if ( strRest.starts_with( "<?" ) )
        return skip( "?>" );
    return strRest.starts_with( "<!" ) ? skipDocumentType( in_uBegin ) : skip( ">" );
}

std::size_t SourceText::skipDocumentType( std::size_t in_uBegin ) const {
    bool bSubset = false;
    for ( std::size_t u = in_uBegin + 2; u < m_strText.size(); ++u ) {
        const char c = m_strText[u];
        if ( c == '"' || c == '\'' ) {
            u = m_strText.find( c, u + 1 );
            if ( u == std::string::npos )
                break;
        } else if ( m_strText.compare( u, 4, "<!--" ) == 0 || m_strText.compare( u, 2, "<?" ) == 0 ) {
            u = skipMarkup( u ) - 1;
        } else if ( c == '[' || c == ']' ) {
            bSubset = c == '[';
        } else if ( c == '>' && !bSubset ) {
            return u + 1;
        }
    }
    return m_strText.size();
}

std::size_t SourceText::skipBlanks( std::size_t in_uFrom ) const {
    return std::min( m_strText.find_first_not_of( BLANKS, in_uFrom ), m_strText.size() );
}

/// Sets the places in one start tag.
/// @return the end of the tag
std::size_t SourceText::locateTag( std::size_t in_uBegin, const Place* in_pFirst, const Place* in_pEnd ) const {
    const std::size_t uNameEnd = std::min( m_strText.find_first_of( " \t\r\n/>", in_uBegin ), m_strText.size() );
    for ( const Place* p = in_pFirst; p != in_pEnd; ++p )
        *p->pSpan = getSpan( in_uBegin, uNameEnd );
    std::size_t u = skipBlanks( uNameEnd );
    while ( u < m_strText.size() && m_strText[u] != '>' && m_strText[u] != '/' ) {
        const std::size_t uName = u;
        const std::size_t uEqual = std::min( m_strText.find( '=', u ), m_strText.size() );
        const std::string_view strName =
            std::string_view( m_strText ).substr( uName, m_strText.find_first_of( " \t\r\n=", uName ) - uName );
        const std::size_t uQuote = skipBlanks( uEqual + 1 );
        if ( uQuote >= m_strText.size() )
            return m_strText.size();
        const std::size_t uClose = std::min( m_strText.find( m_strText[uQuote], uQuote + 1 ), m_strText.size() - 1 );
        for ( const Place* p = in_pFirst; p != in_pEnd; ++p ) {
            if ( p->strAttribute != strName )
                continue;
            *p->pSpan = getSpan( uName, uClose + 1 );
            if ( p->pValueSpan )
                *p->pValueSpan = getSpan( uQuote + 1, uClose );
        }
        u = skipBlanks( uClose + 1 );
    }
    return std::min( u + 1, m_strText.size() );
}

SourceSpan SourceText::getSpan( std::size_t in_uBegin, std::size_t in_uEnd ) const {
    const auto itNext = std::upper_bound( m_vecLines.begin(), m_vecLines.end(), in_uBegin );
    // A line may be as long as the file: count from the place before, if it stands on the same line.
    if ( m_counted.uOffset < *std::prev( itNext ) || m_counted.uOffset > in_uBegin )
        m_counted = { *std::prev( itNext ), 1 };
    const std::string_view strText = m_strText;
    m_counted.uColumn += countCharacters( strText.substr( m_counted.uOffset, in_uBegin - m_counted.uOffset ) );
    m_counted.uOffset = in_uBegin;
    const std::string_view strSpan = strText.substr( in_uBegin, in_uEnd - in_uBegin );
    return { static_cast<unsigned long long>( itNext - m_vecLines.begin() ), m_counted.uColumn,
             m_counted.uColumn + countCharacters( strSpan.substr( 0, strSpan.find_first_of( "\r\n" ) ) ) };
}

} // namespace Velquin::Pstn

#include "document/SourceText.h"

#include <algorithm>
#include <iterator>

#include <libxml/encoding.h>
#include <velquin/InputFile.h>

#include "document/LibXml2Compat.h"
#include "document/SyntaxCharacters.h"
#include "document/SyntaxScan.h"

namespace Velquin::Pstn {

namespace {

constexpr std::string_view CDATA = "<![CDATA[";

/// While it lives, libxml2 keeps its errors to itself.
class QuietLibXml2 {
public:
    QuietLibXml2() { xmlSetStructuredErrorFunc( nullptr, &ignore ); }
    QuietLibXml2( const QuietLibXml2& ) = delete;
    QuietLibXml2& operator=( const QuietLibXml2& ) = delete;
    ~QuietLibXml2() { xmlSetStructuredErrorFunc( m_pOuterContext, m_pOuter ); }

private:
    static void ignore( void*, XmlErrorPtr ) {}

    const xmlStructuredErrorFunc m_pOuter = xmlStructuredError;
    void* const m_pOuterContext = xmlStructuredErrorContext;
};

using XmlBufferPtr = std::unique_ptr<xmlBuffer, LibXml2Deleter<xmlBuffer, xmlBufferFree>>;

/// The encoding that a document declares in its first line; empty for none.
std::string findDeclaredEncoding( std::string_view in_strText ) {
    std::string_view strLine = in_strText.substr( 0, in_strText.find_first_of( ">\r\n" ) );
    const std::size_t uName = strLine.find( "encoding" );
    const std::size_t uQuote = strLine.find_first_of( "\"'", uName );
    if ( !strLine.starts_with( "<?xml" ) || uName == std::string_view::npos || uQuote == std::string_view::npos )
        return {};
    strLine.remove_prefix( uQuote + 1 );
    return std::string( strLine.substr( 0, strLine.find_first_of( "\"' ?" ) ) );
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
    m_strText.assign( std::istreambuf_iterator<char>( stream ), {} );
    const bool bMark = m_strText.starts_with( "\xEF\xBB\xBF" );
    if ( bMark )
        m_strText.erase( 0, 3 );
    m_strEncoding = in_szEncoding ? in_szEncoding : findDeclaredEncoding( m_strText );
    if ( !bMark )
        convert();
    m_vecLines.push_back( 0 );
    for ( std::size_t u = m_strText.find( '\n' ); u != std::string::npos; u = m_strText.find( '\n', u + 1 ) )
        m_vecLines.push_back( u + 1 );
}

/// Converts the text to UTF-8, as far as it can be converted.
void SourceText::convert() {
    const std::string_view strBegin = std::string_view( m_strText ).substr( 0, 4 );
    const bool bLittleMark = strBegin.starts_with( "\xFF\xFE" );
    const bool bMark = bLittleMark || strBegin.starts_with( "\xFE\xFF" );
    const bool bLittleEndian = bLittleMark || strBegin == std::string_view( "<\0?\0", 4 );
    // What such a file declares doesn't say in which order the bytes stand.
    m_bUtf16 = bMark || bLittleEndian || strBegin == std::string_view( "\0<\0?", 4 );
    if ( m_bUtf16 )
        m_strEncoding = bLittleEndian ? "UTF-16LE" : "UTF-16BE";
    if ( bMark )
        m_strText.erase( 0, 2 );
    const xmlCharEncoding eFrom = xmlParseCharEncoding( m_strEncoding.c_str() );
    if ( m_strEncoding.empty() || eFrom == XML_CHAR_ENCODING_UTF8 ||
         ( !m_bUtf16 && m_strEncoding.starts_with( "UTF-16" ) ) )
        return;
    const QuietLibXml2 quiet;
    xmlCharEncodingHandler* const pHandler = xmlFindCharEncodingHandler( m_strEncoding.c_str() );
    const XmlBufferPtr pIn( xmlBufferCreate() );
    const XmlBufferPtr pOut( xmlBufferCreate() );
    if ( pHandler && pIn && pOut &&
         xmlBufferAdd( pIn.get(), toXml( m_strText.data() ), static_cast<int>( m_strText.size() ) ) == 0 ) {
        while ( xmlBufferLength( pIn.get() ) > 0 && xmlCharEncInFunc( pHandler, pOut.get(), pIn.get() ) > 0 )
            ; // one call converts a part
        m_strText.assign( fromXml( xmlBufferContent( pOut.get() ) ),
                          static_cast<std::size_t>( xmlBufferLength( pOut.get() ) ) );
        if ( xmlBufferLength( pIn.get() ) > 0 ) {
            m_uConverted = m_strText.size();
            m_strText.append( fromXml( xmlBufferContent( pIn.get() ) ),
                              static_cast<std::size_t>( xmlBufferLength( pIn.get() ) ) );
        }
    }
    if ( pHandler )
        xmlCharEncCloseFunc( pHandler );
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
            if ( bTexts && !vecOpen.empty() && m_strText.compare( u, CDATA.size(), CDATA ) == 0 )
                locateText( u + CDATA.size(), "]]>", vecOpen.back(), in_vecPlaces );
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
            locateText( u, "<", vecOpen.back(), in_vecPlaces );
    }
}

void SourceText::explain( Finding& inout_finding ) const {
    const SyntaxPlace place = getSyntaxPlace( inout_finding.strText );
    const std::string_view strText = m_strText;
    if ( place.eHow == SyntaxPlace::How::DECLARATION ) {
        const std::size_t uNext =
            inout_finding.ullLine < m_vecLines.size() ? m_vecLines[inout_finding.ullLine] : strText.size();
        const std::size_t uBegin = strText.rfind( place.strBegin, uNext );
        inout_finding.strHint = place.strHint;
        if ( uBegin != std::string_view::npos )
            inout_finding.span = getSpan( uBegin, uBegin + place.strBegin.size() );
    } else if ( place.eHow != SyntaxPlace::How::REPORTED ) {
        const std::optional<SyntaxFinding> fault =
            findSyntaxFault( { strText, m_strEncoding, m_bUtf16, m_uConverted } );
        const auto getPlace = [&]( std::string_view in_strPiece ) {
            const auto uBegin = static_cast<std::size_t>( in_strPiece.data() - strText.data() );
            return getSpan( uBegin, uBegin + in_strPiece.size() );
        };
        const SourceSpan span = fault ? getPlace( fault->strPlace ) : SourceSpan{};
        if ( !fault || ( span.ullLine > inout_finding.ullLine && place.eHow == SyntaxPlace::How::TEXT ) )
            return;
        inout_finding.span = span;
        inout_finding.strMessage = fault->strMessage;
        inout_finding.strHint = fault->strHint;
        inout_finding.vecRelated.clear();
        if ( !fault->strLabel.empty() ) {
            Finding::Related& related = inout_finding.vecRelated.emplace_back();
            related.strLabel = fault->strLabel;
            related.strFile = inout_finding.strFile;
            related.span = getPlace( fault->strOther );
            related.ullLine = related.span.ullLine;
        }
    }
}

bool SourceText::isMarkup( std::size_t in_uBegin ) const {
    const std::string_view strRest = std::string_view( m_strText ).substr( in_uBegin + 1 );
    return !strRest.empty() && std::string_view( "!?/" ).find( strRest[0] ) != std::string_view::npos;
}

/// Sets the next text place of an element to the line of text that begins there, if one does.
void SourceText::locateText( std::size_t in_uBegin, std::string_view in_strEnd, unsigned long long in_ullElement,
                             std::vector<Place>& inout_vecPlaces ) const {
    const std::size_t uBegin = skipBlanks( in_uBegin );
    const std::size_t uLast = std::min( m_strText.find( in_strEnd, in_uBegin ), m_strText.size() );
    if ( uBegin >= uLast )
        return;
    auto it = std::lower_bound(
        inout_vecPlaces.begin(), inout_vecPlaces.end(), in_ullElement,
        []( const Place& in_place, unsigned long long in_ull ) { return in_place.ullElement < in_ull; } );
    while ( it != inout_vecPlaces.end() && it->ullElement == in_ullElement && !it->bText )
        ++it;
    if ( it == inout_vecPlaces.end() || it->ullElement != in_ullElement )
        return;
    it->bText = false;
    const std::size_t uEnd = std::min( m_strText.find_first_of( "\r\n", uBegin ), uLast );
    *it->pSpan = getSpan( uBegin, m_strText.find_last_not_of( XML_BLANKS, uEnd - 1 ) + 1 );
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
    if ( strRest.starts_with( CDATA ) )
        return skip( "]]>" );
    if ( strRest.starts_with( "<?" ) )
        return skip( "?>" );
    return strRest.starts_with( "<!" ) ? findEndOfDocumentType( m_strText, in_uBegin ) : skip( ">" );
}

std::size_t SourceText::skipBlanks( std::size_t in_uFrom ) const {
    return std::min( m_strText.find_first_not_of( XML_BLANKS, in_uFrom ), m_strText.size() );
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
        SourceSpan span;
        SourceSpan valueSpan;
        for ( const Place* p = in_pFirst; p != in_pEnd; ++p ) {
            if ( p->strAttribute != strName )
                continue;
            if ( span.ullLine == 0 ) {
                span = getSpan( uName, uClose + 1 );
                valueSpan = getSpan( uQuote + 1, uClose );
            }
            *p->pSpan = span;
            if ( p->pValueSpan )
                *p->pValueSpan = valueSpan;
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

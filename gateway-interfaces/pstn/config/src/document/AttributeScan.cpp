#include "document/AttributeScan.h"

#include <algorithm>
#include <map>
#include <utility>

#include "document/SyntaxCharacters.h"

namespace Velquin::Pstn {

namespace {

/// What can't stand where an attribute could begin, and what to do. The first that fits counts.
struct NoAttribute {
    std::string_view strBegin;
    std::string_view strMessage; ///< empty for the usual one
    std::string_view strHint;
};

constexpr NoAttribute NO_ATTRIBUTES[] = {
    { "<!--", "a comment can't stand inside a tag", "move it out of the tag" },
    { "/", "the character > must follow the / that ends a tag", "write />" },
    { "=", "no name stands in front of =", "write name=\"value\"" },
    { "\"", "no name stands in front of this value", "write name=\"value\"" },
    { "'", "no name stands in front of this value", "write name=\"value\"" },
    { "\\", "", "write / if it ends the tag, or remove it" },
    { "", "", "write a blank instead, or remove it" },
};

class Scanner {
public:
    Scanner( std::string_view in_strText, std::size_t in_uFrom, const std::string& in_strTag,
             std::string_view in_strEnd )
        : m_strText( in_strText ), m_strTag( in_strTag ), m_strEnd( in_strEnd ), m_u( in_uFrom ) {}

    AttributeScan run() {
        while ( scanAttribute() )
            ;
        m_scan.uEnd = m_u;
        return std::move( m_scan );
    }

private:
    bool scanAttribute();
    bool scanValue( std::string_view in_strName );
    bool reportNoName( bool in_bBlank );
    bool reportBehindValue( std::string_view in_strPlace, char in_cBehind );
    bool report( std::string_view in_strPlace, std::initializer_list<std::string_view> in_listMessage,
                 std::initializer_list<std::string_view> in_listHint );

    bool endInside( std::string in_strWhat ) {
        m_scan.strEndsInside = std::move( in_strWhat );
        return false;
    }
    std::size_t skipBlanks( std::size_t in_u ) const {
        return std::min( m_strText.find_first_not_of( XML_BLANKS, in_u ), m_strText.size() );
    }

    const std::string_view m_strText;
    const std::string& m_strTag;
    const std::string_view m_strEnd;
    std::size_t m_u;
    AttributeScan m_scan;
};

std::string_view trimEnd( std::string_view in_strText ) {
    return in_strText.substr( 0, in_strText.find_last_not_of( XML_BLANKS ) + 1 );
}

bool isQuote( char in_c ) {
    return in_c == '"' || in_c == '\'';
}

/// The name in front of = at the end of a value: the value's own closing quote is lost, and that of the next attribute
/// ended it. Empty when that isn't so.
std::string_view getSwallowed( std::string_view in_strValue ) {
    const std::string_view strValue = trimEnd( in_strValue );
    if ( !strValue.ends_with( '=' ) )
        return {};
    const std::string_view strFront = trimEnd( strValue.substr( 0, strValue.size() - 1 ) );
    const std::size_t uBlank = strFront.find_last_of( XML_BLANKS );
    const std::string_view strName = strFront.substr( uBlank == std::string_view::npos ? 0 : uBlank + 1 );
    return readName( strName ) == strName ? strName : std::string_view();
}

/// Reports a mistake, or what is its cause: a value without its closing quote.
/// @return false, for the caller to return
bool Scanner::report( std::string_view in_strPlace, std::initializer_list<std::string_view> in_listMessage,
                      std::initializer_list<std::string_view> in_listHint ) {
    m_scan.finding = SyntaxFinding{ in_strPlace, joinTexts( in_listMessage ), joinTexts( in_listHint ) };
    if ( m_scan.vecAttributes.empty() )
        return false;
    const ScannedAttribute& last = m_scan.vecAttributes.back();
    if ( const std::string_view strSwallowed = getSwallowed( last.strValue ); !strSwallowed.empty() ) {
        const char* const pQuote = last.strValue.data() - 1;
        m_scan.finding =
            SyntaxFinding{ trimEnd( { pQuote, static_cast<std::size_t>( strSwallowed.data() - pQuote ) } ),
                           joinTexts( { "the value of attribute ", last.strName, " has no closing quote" } ),
                           joinTexts( { "write it in front of ", strSwallowed } ) };
    }
    return false;
}

bool Scanner::scanAttribute() {
    const std::size_t uFrom = m_u;
    m_u = skipBlanks( m_u );
    const std::string_view strRest = m_strText.substr( m_u );
    if ( strRest.empty() || strRest == "/" || strRest == "?" )
        return endInside( m_strTag );
    if ( strRest[0] == '>' || strRest[0] == '?' || strRest.starts_with( "/>" ) )
        return false;
    const bool bBlank = uFrom != m_u || m_scan.vecAttributes.empty();
    const std::string_view strName = readName( strRest );
    if ( strName.empty() )
        return reportNoName( bBlank );
    const std::size_t uBehind = skipBlanks( m_u + strName.size() );
    if ( uBehind == m_strText.size() )
        return endInside( m_strTag );
    const char cBehind = m_strText[uBehind];
    if ( !bBlank )
        return reportBehindValue( strName, cBehind );
    if ( cBehind == '=' ) {
        m_u = skipBlanks( uBehind + 1 );
        return scanValue( strName );
    }
    if ( const std::string_view strFront = strName.substr( 0, strName.size() - 1 ); strName.ends_with( ':' ) )
        return report( strName, { "a colon follows the name ", strFront },
                       { "write = between the name and the value" } );
    if ( isQuote( cBehind ) )
        return report( strName, { "no = stands between the name ", strName, " and its value" }, { "write it" } );
    if ( uBehind == m_u + strName.size() && cBehind != '>' && cBehind != '/' ) { // no character of a name, and no blank
        m_u = uBehind;
        return reportNoName( true );
    }
    return report( strName, { "attribute ", strName, " has no value" }, { "write ", strName, "=\"value\"" } );
}

bool Scanner::scanValue( std::string_view in_strName ) {
    const std::string_view strRest = m_strText.substr( m_u );
    const std::string strOf = joinTexts( { "the value of attribute ", in_strName } );
    if ( strRest.empty() )
        return endInside( strOf );
    if ( !isQuote( strRest[0] ) )
        return report( strRest.substr( 0, 1 ), { strOf, " must begin with a quote" },
                       { "write ", in_strName, "=\"value\"" } );
    const std::string_view strQuote = strRest.substr( 0, 1 );
    const std::size_t uClose = std::min( strRest.find_first_of( joinTexts( { strQuote, "<" } ), 1 ), strRest.size() );
    const std::string_view strValue = strRest.substr( 1, uClose - 1 );
    m_scan.finding = findWrongReference( strValue );
    if ( m_scan.finding )
        return false;
    if ( uClose < strRest.size() && strRest[uClose] != '<' ) {
        m_u += uClose + 1;
        const auto uLength = static_cast<std::size_t>( &strRest[uClose] - in_strName.data() + 1 );
        m_scan.vecAttributes.push_back( { in_strName, strValue, { in_strName.data(), uLength } } );
        return true;
    }
    const std::string_view strPlace = strRest.substr( 0, uClose );
    if ( strValue.find( '>' ) != std::string_view::npos )
        return report( strPlace, { strOf, " has no closing quote" }, { "end it with ", strQuote } );
    if ( uClose == strRest.size() )
        return endInside( strOf );
    return report( strPlace, { strOf, " has no closing quote, or holds the character <" },
                   { "write the quote, or &lt; for the character" } );
}

/// Something stands right behind the closing quote of a value.
bool Scanner::reportBehindValue( std::string_view in_strPlace, char in_cBehind ) {
    const ScannedAttribute& last = m_scan.vecAttributes.back();
    if ( in_cBehind == '=' )
        return report( in_strPlace, { "a blank must stand in front of attribute ", in_strPlace }, { "write it" } );
    return report( in_strPlace, { "something stands behind the closing quote of attribute ", last.strName },
                   { last.strValue.empty() ? "remove one of the two quotes"
                                           : "remove it, or write &quot; for a quote inside the value" } );
}

bool Scanner::reportNoName( bool in_bBlank ) {
    const std::string_view strRest = m_strText.substr( m_u );
    if ( !in_bBlank && std::string_view( "\"'-.0123456789" ).find( strRest[0] ) != std::string_view::npos )
        return reportBehindValue( strRest.substr( 0, 1 ), strRest[0] );
    if ( strRest[0] == '<' && !strRest.starts_with( "<!--" ) ) {
        const std::size_t uLast = m_strText.find_last_not_of( XML_BLANKS, m_u - 1 );
        return report( m_strText.substr( uLast, 1 ), { m_strTag, " has no end" }, { "end it with ", m_strEnd } );
    }
    const auto* const pNoAttribute =
        std::find_if( std::begin( NO_ATTRIBUTES ), std::end( NO_ATTRIBUTES ),
                      [strRest]( const NoAttribute& in_no ) { return strRest.starts_with( in_no.strBegin ); } );
    if ( pNoAttribute->strMessage.empty() )
        return report( strRest.substr( 0, 1 ),
                       { "the character ", nameCharacter( strRest ), " can't stand here in a tag" },
                       { pNoAttribute->strHint } );
    return report( strRest.substr( 0, 1 ), { pNoAttribute->strMessage }, { pNoAttribute->strHint } );
}

} // namespace

AttributeScan scanAttributes( std::string_view in_strText, std::size_t in_uFrom, const std::string& in_strTag,
                              std::string_view in_strEnd ) {
    return Scanner( in_strText, in_uFrom, in_strTag, in_strEnd ).run();
}

std::optional<SyntaxFinding> findAttributeTwice( const std::vector<ScannedAttribute>& in_vecAttributes ) {
    std::map<std::string_view, std::string_view> mapPlaces;
    for ( const ScannedAttribute& attribute : in_vecAttributes ) {
        const auto [it, bNew] = mapPlaces.try_emplace( attribute.strName, attribute.strPlace );
        if ( !bNew )
            return SyntaxFinding{ attribute.strPlace,
                                  joinTexts( { "attribute ", attribute.strName, " stands twice in the tag" } ),
                                  "remove one of them", "first here", it->second };
    }
    return std::nullopt;
}

std::optional<SyntaxFinding> findWrongDeclaration( std::string_view in_strBegin,
                                                   const std::vector<ScannedAttribute>& in_vecAttributes,
                                                   bool in_bUtf16 ) {
    if ( in_vecAttributes.empty() || in_vecAttributes[0].strName != "version" )
        return SyntaxFinding{ in_strBegin, "the XML declaration doesn't begin with a version",
                              "write <?xml version=\"1.0\" in front of the rest" };
    const std::string_view strVersion = in_vecAttributes[0].strValue;
    if ( !strVersion.starts_with( "1." ) )
        return SyntaxFinding{ strVersion, joinTexts( { "there is no XML version ", strVersion } ),
                              "write version=\"1.0\"" };
    const std::string_view strEncoding =
        in_vecAttributes.size() > 1 ? in_vecAttributes[1].strValue : std::string_view();
    if ( strEncoding.starts_with( "UTF-16" ) && !in_bUtf16 )
        return SyntaxFinding{ strEncoding, joinTexts( { "the file isn't in ", strEncoding } ),
                              "write the encoding that it is in, for instance UTF-8" };
    return std::nullopt;
}

} // namespace Velquin::Pstn

#include "document/SyntaxScan.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "document/AttributeScan.h"
#include "document/OpenTags.h"
#include "document/SyntaxCharacters.h"

namespace Velquin::Pstn {

namespace {

/// What begins no tag, and what to do. The first that fits counts.
struct NoTag {
    std::string_view strBegin;
    std::string_view strMessage;
    std::string_view strHint;
};

constexpr std::string_view NO_NAME = "a name must follow the character <";

constexpr NoTag NO_TAGS[] = {
    { "<<<<<<<", "the mark of a merge conflict stands here",
      "settle the conflict, and remove its marks <<<<<<<, ======= and >>>>>>>" },
    { "<!", "the characters <! don't begin a comment", "begin it with <!-- and end it with -->" },
    { "<-", "the characters <- don't begin a comment", "begin it with <!-- and end it with -->" },
    { "<\\", "the characters <\\ begin no tag", "write </ if it is an end tag" },
    { "< ", NO_NAME, "remove the blank, or write &lt; for the character itself" },
    { "<", NO_NAME, "remove it, or write &lt; for the character itself" },
};

class SyntaxScan {
public:
    explicit SyntaxScan( const IllFormedText& in_text )
        : m_source( in_text ),
          m_strange( findStrangeCharacter( in_text ) ),
          m_strText( m_strange ? std::string_view( in_text.strText.data(), m_strange->strPlace.data() )
                               : in_text.strText ) {}

    std::optional<SyntaxFinding> run();

private:
    bool scanMarkup();
    bool scanComment();
    bool scanInstruction();
    bool scanDeclaration();
    bool scanStartTag();
    bool scanEndTag();
    bool scanTagAttributes( const std::string& in_strTag, std::string_view in_strEnd );
    bool skipTo( std::size_t in_uBegin, std::string_view in_strEnd, const std::string& in_strWhat );
    bool reportEnd( const std::string& in_strInside );
    bool report( SyntaxFinding in_finding );

    std::string_view getRest() const { return m_strText.substr( m_u ); }
    std::string_view getPiece( std::size_t in_uBegin, std::size_t in_uEnd ) const {
        return m_strText.substr( in_uBegin, in_uEnd - in_uBegin );
    }
    std::size_t skipBlanks( std::size_t in_u ) const {
        return std::min( m_strText.find_first_not_of( XML_BLANKS, in_u ), m_strText.size() );
    }
    /// The last character in front of the offset that is no blank.
    std::string_view getLast( std::size_t in_uEnd ) const {
        const std::size_t u = in_uEnd == 0 ? 0 : m_strText.find_last_not_of( XML_BLANKS, in_uEnd - 1 );
        return u == std::string_view::npos ? m_strText.substr( 0, 1 ) : m_strText.substr( u, 1 );
    }

    const IllFormedText& m_source;
    const std::optional<SyntaxFinding> m_strange;
    const std::string_view m_strText; ///< up to the first character that can't be read
    std::size_t m_u = 0;
    bool m_bRoot = false; ///< whether the root element was begun
    OpenTags m_open;
    std::vector<ScannedAttribute> m_vecAttributes; ///< of the current tag
    std::optional<SyntaxFinding> m_finding;
};

/// @return false, for the caller to return
bool SyntaxScan::report( SyntaxFinding in_finding ) {
    m_finding = std::move( in_finding );
    return false;
}

/// Reports that the text ends inside something, or why the rest of it can't be read.
bool SyntaxScan::reportEnd( const std::string& in_strInside ) {
    if ( m_strange )
        return report( *m_strange );
    return ( !m_open.isEmpty() || !in_strInside.empty() ) &&
           report( m_open.describeEnd( getLast( m_strText.size() ), in_strInside ) );
}

/// Goes on behind what ends something.
bool SyntaxScan::skipTo( std::size_t in_uBegin, std::string_view in_strEnd, const std::string& in_strWhat ) {
    const std::size_t uEnd = m_strText.find( in_strEnd, in_uBegin );
    if ( uEnd == std::string_view::npos )
        return m_strange ? reportEnd( "" )
                         : report( { getPiece( m_u, in_uBegin ), in_strWhat + " has no end",
                                     joinTexts( { "end it with ", in_strEnd } ) } );
    m_u = uEnd + in_strEnd.size();
    return true;
}

bool SyntaxScan::scanComment() {
    const std::string_view strRest = getRest();
    const std::string_view strBegin = strRest.substr( 0, 4 );
    const std::size_t uHyphens = strRest.find( "--", 4 );
    const std::size_t uEnd = strRest.find( "-->", 4 );
    const std::size_t uNext = strRest.find( "<!--", 4 );
    if ( uNext < uEnd )
        return report( { strBegin, "the comment has no end in front of the next one",
                         "end it with -->; a comment can't hold another", "the next one begins here",
                         strRest.substr( uNext, 4 ) } );
    if ( uHyphens < uEnd && uEnd != std::string_view::npos )
        return report( { strRest.substr( uHyphens, 2 ), "the characters -- stand inside a comment",
                         "write only one of them; a comment ends with -->", "the comment begins here", strBegin } );
    return skipTo( m_u + 4, "-->", "the comment" );
}

bool SyntaxScan::scanInstruction() {
    const std::string_view strName = readName( getRest().substr( 2 ) );
    const std::string_view strPlace = getRest().substr( 0, 2 + strName.size() );
    if ( strName == "XML" || strName == "Xml" )
        return report( { strPlace, "no instruction has this name", "write <?xml, in small letters" } );
    if ( strName == "xml" && m_u == 0 )
        return scanDeclaration();
    if ( strName == "xml" )
        return report( { strPlace, "an XML declaration (<?xml ...?>) may stand only at the very beginning",
                         "remove it, or what stands before it" } );
    return skipTo( m_u + strPlace.size(), "?>", joinTexts( { "the instruction ", strPlace } ) );
}

bool SyntaxScan::scanDeclaration() {
    const std::string_view strBegin = getRest().substr( 0, 5 );
    m_u += strBegin.size();
    if ( !scanTagAttributes( "the XML declaration", "?>" ) )
        return false;
    if ( !getRest().starts_with( "?>" ) )
        return report( { getLast( m_u + 1 ), "the XML declaration has no end", "end it with ?>" } );
    m_u += 2;
    m_finding = findWrongDeclaration( strBegin, m_vecAttributes, m_source.bUtf16 );
    return !m_finding;
}

bool SyntaxScan::scanTagAttributes( const std::string& in_strTag, std::string_view in_strEnd ) {
    AttributeScan scan = scanAttributes( m_strText, m_u, in_strTag, in_strEnd );
    if ( scan.finding )
        return report( std::move( *scan.finding ) );
    m_u = scan.uEnd;
    m_vecAttributes = std::move( scan.vecAttributes );
    return scan.strEndsInside.empty() || reportEnd( scan.strEndsInside );
}

bool SyntaxScan::scanStartTag() {
    const std::string_view strRest = getRest();
    const std::string_view strName = readName( strRest.substr( 1 ) );
    if ( strName.empty() && strRest.size() == 1 )
        return reportEnd( "a tag" );
    if ( strName.empty() ) {
        const auto* const pNoTag =
            std::find_if( std::begin( NO_TAGS ), std::end( NO_TAGS ),
                          [strRest]( const NoTag& in_noTag ) { return strRest.starts_with( in_noTag.strBegin ); } );
        return report( { strRest.substr( 0, pNoTag->strBegin.size() ), std::string( pNoTag->strMessage ),
                         std::string( pNoTag->strHint ) } );
    }
    if ( m_bRoot && m_open.isEmpty() )
        return false;
    m_bRoot = true;
    const std::string_view strTag = strRest.substr( 0, 1 + strName.size() );
    m_u += strTag.size();
    if ( !scanTagAttributes( joinTexts( { "the start tag of ", strName } ), "> or />" ) )
        return false;
    const std::string_view strEnd = getRest().substr( 0, getRest()[0] == '/' ? 2 : 1 );
    if ( strEnd == "?" )
        return report( { strTag, "what begins with < can't end with ?>", joinTexts( { "write <?", strName } ),
                         "the character ? stands here", strEnd } );
    m_u += strEnd.size();
    m_open.begin( strTag, strEnd );
    m_finding = findAttributeTwice( m_vecAttributes );
    return !m_finding;
}

bool SyntaxScan::scanEndTag() {
    const std::string_view strRest = getRest();
    const std::string_view strName = readName( strRest.substr( 2 ) );
    const std::size_t uEnd = skipBlanks( m_u + 2 + strName.size() );
    if ( m_open.isEmpty() )
        return false;
    if ( uEnd == m_strText.size() )
        return reportEnd( "an end tag" );
    const std::string strWrite = joinTexts( { "write </", m_open.getName(), ">" } );
    if ( strName.empty() )
        return report( { strRest.substr( 0, 2 ), "a name must follow the characters </", strWrite } );
    if ( m_strText[uEnd] == '<' )
        return report(
            { getLast( uEnd ), joinTexts( { "the end tag </", strName, " has no end" } ), "end it with >" } );
    if ( m_strText[uEnd] != '>' )
        return report( { m_strText.substr( uEnd, 1 ), "an end tag can hold only a name", strWrite } );
    if ( m_open.getName() != strName )
        return report( m_open.describeMismatch( strName, getPiece( m_u, uEnd + 1 ) ) );
    m_open.close();
    m_u = uEnd + 1;
    return true;
}

bool SyntaxScan::scanMarkup() {
    const std::string_view strRest = getRest();
    if ( strRest.starts_with( "<!--" ) )
        return scanComment();
    if ( strRest.starts_with( "<![CDATA[" ) )
        return skipTo( m_u + 9, "]]>", "the CDATA section" );
    if ( strRest.starts_with( "<!DOCTYPE" ) ) {
        m_u = findEndOfDocumentType( m_strText, m_u );
        return m_strText[m_u - 1] == '>' || reportEnd( "the document type declaration" );
    }
    if ( strRest.starts_with( "<?" ) )
        return scanInstruction();
    return strRest.starts_with( "</" ) ? scanEndTag() : scanStartTag();
}

std::optional<SyntaxFinding> SyntaxScan::run() {
    for ( ;; ) {
        const std::size_t uMarkup = std::min( m_strText.find( '<', m_u ), m_strText.size() );
        const std::string_view strContent = getPiece( m_u, uMarkup );
        m_u = uMarkup;
        if ( m_open.isEmpty() && strContent.find_first_not_of( XML_BLANKS ) != std::string_view::npos )
            return std::nullopt;
        m_open.addText( strContent );
        const std::size_t uEnd = strContent.find( "]]>" );
        if ( std::optional<SyntaxFinding> finding = findWrongReference( strContent.substr( 0, uEnd ) ) )
            return finding;
        if ( uEnd != std::string_view::npos )
            return SyntaxFinding{ strContent.substr( uEnd, 3 ), "the characters ]]> end no CDATA section here",
                                  "write ]]&gt;" };
        if ( !( m_u == m_strText.size() ? reportEnd( "" ) : scanMarkup() ) )
            return m_finding;
    }
}

} // namespace

std::optional<SyntaxFinding> findSyntaxFault( const IllFormedText& in_text ) {
    return SyntaxScan( in_text ).run();
}

} // namespace Velquin::Pstn

#include "document/SyntaxScan.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "document/AttributeScan.h"
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
    /// An open element, or one that a start tag with /> ended.
    struct Tag {
        std::string_view strName;
        std::string_view strPlace;     ///< of an open one `<` and its name, of an ended one `/>`
        const char* pParent = nullptr; ///< where the tag of its parent begins
    };

    bool scanMarkup();
    bool scanComment();
    bool scanInstruction();
    bool scanDeclaration();
    bool scanStartTag();
    bool scanEndTag();
    bool scanTagAttributes( const std::string& in_strTag, std::string_view in_strEnd );
    bool skipTo( std::size_t in_uBegin, std::string_view in_strEnd, const std::string& in_strWhat );
    bool reportEnd( const std::string& in_strInside );
    bool reportMismatch( std::string_view in_strName, std::string_view in_strPlace );
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
    std::vector<Tag> m_vecOpen;
    std::map<std::string_view, Tag> m_mapEnded;    ///< by its name, the last element that a start tag with /> ended
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
    constexpr std::size_t MAX_OPEN = 20;
    if ( m_strange )
        return report( *m_strange );
    if ( m_vecOpen.empty() && in_strInside.empty() )
        return false;
    SyntaxFinding finding{ getLast( m_strText.size() ), "the file ends here", "write what is missing" };
    if ( !in_strInside.empty() )
        finding.strMessage += ", in " + in_strInside;
    if ( !m_vecOpen.empty() && m_vecOpen.size() <= MAX_OPEN ) {
        std::string strPath;
        std::string strEnds;
        for ( const Tag& tag : m_vecOpen ) {
            strPath += joinTexts( { "/", tag.strName } );
            strEnds.insert( 0, joinTexts( { "</", tag.strName, ">" } ) );
        }
        finding.strMessage += ", inside " + strPath;
        finding.strHint += ", at least " + strEnds;
    }
    if ( !m_vecOpen.empty() ) {
        finding.strLabel = "opened here";
        finding.strOther = m_vecOpen.back().strPlace;
    }
    return report( finding );
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
    if ( m_bRoot && m_vecOpen.empty() )
        return false;
    m_bRoot = true;
    const Tag tag{ strName, strRest.substr( 0, 1 + strName.size() ),
                   m_vecOpen.empty() ? nullptr : m_vecOpen.back().strPlace.data() };
    m_u += tag.strPlace.size();
    if ( !scanTagAttributes( joinTexts( { "the start tag of ", strName } ), "> or />" ) )
        return false;
    const std::string_view strEnd = getRest().substr( 0, 2 );
    if ( strEnd[0] == '?' )
        return report( { tag.strPlace, "what begins with < can't end with ?>", joinTexts( { "write <?", strName } ),
                         "the character ? stands here", strEnd.substr( 0, 1 ) } );
    m_u += strEnd[0] == '/' ? 2 : 1;
    if ( strEnd[0] == '/' )
        m_mapEnded[strName] = { strName, strEnd, tag.pParent };
    else
        m_vecOpen.push_back( tag );
    m_finding = findAttributeTwice( m_vecAttributes );
    return !m_finding;
}

bool SyntaxScan::scanEndTag() {
    const std::string_view strRest = getRest();
    const std::string_view strName = readName( strRest.substr( 2 ) );
    const std::size_t uEnd = skipBlanks( m_u + 2 + strName.size() );
    if ( m_vecOpen.empty() )
        return false;
    if ( uEnd == m_strText.size() )
        return reportEnd( "an end tag" );
    const Tag& open = m_vecOpen.back();
    const std::string strWrite = joinTexts( { "write </", open.strName, ">" } );
    if ( strName.empty() )
        return report( { strRest.substr( 0, 2 ), "a name must follow the characters </", strWrite } );
    if ( m_strText[uEnd] == '<' )
        return report(
            { getLast( uEnd ), joinTexts( { "the end tag </", strName, " has no end" } ), "end it with >" } );
    if ( m_strText[uEnd] != '>' )
        return report( { m_strText.substr( uEnd, 1 ), "an end tag can hold only a name", strWrite } );
    if ( open.strName != strName )
        return reportMismatch( strName, getPiece( m_u, uEnd + 1 ) );
    m_vecOpen.pop_back();
    m_u = uEnd + 1;
    return true;
}

/// Reports an end tag that can't end the innermost element.
bool SyntaxScan::reportMismatch( std::string_view in_strName, std::string_view in_strPlace ) {
    const Tag& open = m_vecOpen.back();
    const bool bOfOuter = std::any_of( m_vecOpen.begin(), m_vecOpen.end(),
                                       [in_strName]( const Tag& in_tag ) { return in_tag.strName == in_strName; } );
    if ( bOfOuter )
        return report( { open.strPlace, joinTexts( { "the element ", open.strName, " has no end" } ),
                         joinTexts( { "end its tag with />, or write </", open.strName, ">" } ),
                         joinTexts( { "</", in_strName, "> stands here instead" } ), in_strPlace } );
    const auto itEnded = m_mapEnded.find( in_strName );
    if ( itEnded != m_mapEnded.end() && itEnded->second.pParent == open.strPlace.data() )
        return report( { in_strPlace, joinTexts( { "no element ", in_strName, " is open here" } ),
                         "remove this end tag, or write > for the /> that ended the element", "ended here",
                         itEnded->second.strPlace } );
    return report(
        { in_strPlace, joinTexts( { "</", in_strName, "> can't end the element ", open.strName } ),
          joinTexts( { "write </", open.strName, ">, or look for an end tag that is missing or stands twice" } ),
          "opened here", open.strPlace } );
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
        if ( m_vecOpen.empty() && strContent.find_first_not_of( XML_BLANKS ) != std::string_view::npos )
            return std::nullopt;
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

#include "document/OpenTags.h"

#include <algorithm>

#include "document/SyntaxCharacters.h"

namespace Velquin::Pstn {

void OpenTags::open( std::string_view in_strTag ) {
    m_vecOpen.push_back( { in_strTag.substr( 1 ), in_strTag, getParent() } );
}

void OpenTags::addEnded( std::string_view in_strName, std::string_view in_strEnd ) {
    m_mapEnded[in_strName] = { in_strName, in_strEnd, getParent() };
}

void OpenTags::addText( std::string_view in_strText ) {
    const std::size_t uBegin = in_strText.find_first_not_of( XML_BLANKS );
    if ( uBegin == std::string_view::npos || in_strText.find( '>' ) == std::string_view::npos )
        return;
    const std::size_t uSlash = in_strText[uBegin] == '/' ? 1 : 0;
    const std::string_view strName = readName( in_strText.substr( uBegin + uSlash ) );
    if ( !strName.empty() )
        m_mapTexts[strName] = in_strText.substr( uBegin, uSlash + strName.size() );
}

bool OpenTags::isOpen( std::string_view in_strName ) const {
    return std::any_of( m_vecOpen.begin(), m_vecOpen.end(),
                        [in_strName]( const Tag& in_tag ) { return in_tag.strName == in_strName; } );
}

SyntaxFinding OpenTags::describeMismatch( std::string_view in_strName, std::string_view in_strEndTag ) const {
    const Tag& tag = m_vecOpen.back();
    if ( isOpen( in_strName ) && findLostEnd() )
        return describeLostEnd();
    if ( isOpen( in_strName ) )
        return { tag.strPlace, joinTexts( { "the element ", tag.strName, " has no end" } ),
                 joinTexts( { "end its tag with />, or write </", tag.strName, ">" } ),
                 joinTexts( { "</", in_strName, "> stands here instead" } ), in_strEndTag };
    if ( const auto itText = m_mapTexts.find( in_strName ); itText != m_mapTexts.end() )
        return { itText->second, joinTexts( { "a < is missing in front of ", in_strName } ),
                 joinTexts( { "write <", in_strName } ), "the element ends here", in_strEndTag };
    const auto itEnded = m_mapEnded.find( in_strName );
    if ( itEnded != m_mapEnded.end() && itEnded->second.pParent == tag.strPlace.data() )
        return { in_strEndTag, joinTexts( { "no element ", in_strName, " is open here" } ),
                 "remove this end tag, or write > for the /> that ended the element", "ended here",
                 itEnded->second.strPlace };
    return { in_strEndTag, joinTexts( { "</", in_strName, "> can't end the element ", tag.strName } ),
             joinTexts( { "write </", tag.strName, ">, or look for an end tag that is missing or stands twice" } ),
             "opened here", tag.strPlace };
}

SyntaxFinding OpenTags::describeEnd( std::string_view in_strLast, const std::string& in_strInside ) const {
    constexpr std::size_t MAX_OPEN = 20;
    if ( findLostEnd() )
        return describeLostEnd();
    SyntaxFinding finding{ in_strLast, "the file ends here", "write what is missing" };
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
    return finding;
}

/// The text in the innermost element that may be its end tag; null when there is none.
const std::string_view* OpenTags::findLostEnd() const {
    const auto itText = m_vecOpen.empty() ? m_mapTexts.end() : m_mapTexts.find( getName() );
    return itText != m_mapTexts.end() && itText->second.data() > m_vecOpen.back().strPlace.data() ? &itText->second
                                                                                                  : nullptr;
}

SyntaxFinding OpenTags::describeLostEnd() const {
    const std::string_view strText = *findLostEnd();
    return { strText,
             joinTexts( { strText[0] == '/' ? "a < is" : "the characters </ are", " missing in front of ", strText } ),
             joinTexts( { "write </", getName(), ">" } ), "opened here", m_vecOpen.back().strPlace };
}

} // namespace Velquin::Pstn

#include "document/OpenTags.h"

#include <algorithm>

#include "Suggestion.h"
#include "document/SyntaxCharacters.h"

namespace Velquin::Pstn {

void OpenTags::addText( std::string_view in_strText ) {
    constexpr std::size_t MAX_TEXTS = 1000; // a file made to harm could have millions
    const std::size_t uLine = in_strText.rfind( '\n' );
    const bool bBlank = in_strText.find_last_not_of( XML_BLANKS ) == std::string_view::npos ||
                        in_strText.find_last_not_of( XML_BLANKS ) < uLine;
    m_uIndent = uLine != std::string_view::npos && bBlank ? in_strText.size() - uLine - 1 : std::string_view::npos;

    // A text that ends like a tag may be one that lost its <.
    const std::size_t uBegin = in_strText.find_first_not_of( XML_BLANKS );
    if ( uBegin == std::string_view::npos || in_strText.find( '>' ) == std::string_view::npos )
        return;
    const std::size_t uSlash = in_strText[uBegin] == '/' ? 1 : 0;
    const std::string_view strName = readName( in_strText.substr( uBegin + uSlash ) );
    if ( !strName.empty() && m_mapTexts.size() < MAX_TEXTS )
        m_mapTexts[strName] = in_strText.substr( uBegin, uSlash + strName.size() );
}

void OpenTags::begin( std::string_view in_strTag, std::string_view in_strEnd ) {
    const std::string_view strName = in_strTag.substr( 1 );
    ++m_uTags;
    if ( !m_vecOpen.empty() ) {
        Open& parent = m_vecOpen.back();
        std::vector<Indented>& vecChildren = parent.vecChildren;
        if ( m_uIndent != std::string_view::npos ) {
            if ( parent.strNext.empty() && parent.uIndent != std::string_view::npos && m_uIndent <= parent.uIndent ) {
                parent.strNext = in_strTag;
                parent.bHadChild = parent.bHasChild;
            }
            while ( !vecChildren.empty() && vecChildren.back().uIndent > m_uIndent )
                vecChildren.pop_back();
            if ( vecChildren.empty() || vecChildren.back().uIndent < m_uIndent )
                vecChildren.push_back( { in_strTag, m_uIndent } );
        }
        parent.bHasChild = true;
    }
    if ( in_strEnd.size() > 1 )
        m_mapEnded[strName] = { in_strEnd, m_vecOpen.empty() ? nullptr : m_vecOpen.back().strTag.data(), m_uTags };
    else
        m_vecOpen.push_back( { strName, in_strTag, m_uIndent } );
}

bool OpenTags::isOpen( std::string_view in_strName ) const {
    return std::any_of( m_vecOpen.begin(), m_vecOpen.end(),
                        [in_strName]( const Open& in_open ) { return in_open.strName == in_strName; } );
}

SyntaxFinding OpenTags::describeMismatch( std::string_view in_strName, std::string_view in_strEndTag ) const {
    if ( isOpen( in_strName ) )
        return findLostEnd() ? describeLostEnd() : describeMissingEnd( in_strName, in_strEndTag );
    const Open& open = m_vecOpen.back();
    const std::string strEndTag = joinTexts( { "</", in_strName, ">" } );
    if ( const auto itText = m_mapTexts.find( in_strName ); itText != m_mapTexts.end() )
        return { itText->second, joinTexts( { "a < is missing in front of ", in_strName } ),
                 joinTexts( { "write <", in_strName } ), "the element ends here", in_strEndTag };
    const auto itEnded = m_mapEnded.find( in_strName );
    if ( itEnded != m_mapEnded.end() && itEnded->second.pParent == open.strTag.data() ) {
        if ( itEnded->second.uTags < m_uTags )
            return { itEnded->second.strEnd,
                     joinTexts( { "/> ends the element ", in_strName, " in front of its content" } ), "write >",
                     strEndTag + " stands here", in_strEndTag };
        return { in_strEndTag, joinTexts( { "no element ", in_strName, " is open here" } ),
                 "remove this end tag, or write > for the /> that ended the element", "ended here",
                 itEnded->second.strEnd };
    }
    const std::string aNames[] = { std::string( open.strName ) };
    if ( !findNearest( in_strName, aNames ).empty() )
        return { in_strEndTag, joinTexts( { strEndTag, " can't end the element ", open.strName } ),
                 joinTexts( { "write </", open.strName, ">, or correct the name in the start tag" } ), "opened here",
                 open.strTag };
    return describeMissingBegin( in_strName, in_strEndTag );
}

/// The innermost element has no end tag; the tag that is found ends one around it.
SyntaxFinding OpenTags::describeMissingEnd( std::string_view in_strName, std::string_view in_strEndTag ) const {
    const Open& open = m_vecOpen.back();
    const std::string strWrite = joinTexts( { "write </", open.strName, ">" } );
    SyntaxFinding finding{ open.strTag, joinTexts( { "the element ", open.strName, " has no end" } ),
                           "end its tag with />, or " + strWrite,
                           joinTexts( { "</", in_strName, "> stands here instead" } ), in_strEndTag };
    const Open* const pParent = m_vecOpen.size() > 1 ? &m_vecOpen[m_vecOpen.size() - 2] : nullptr;
    if ( pParent && pParent->strName == open.strName ) {
        finding.strHint = strWrite + " here if it shall end the other one, or remove one of the two";
        finding.strLabel = "the other one begins here";
        finding.strOther = pParent->strTag;
    } else if ( !open.strNext.empty() ) {
        finding.strHint = open.bHadChild ? strWrite : "end its tag with />";
        finding.strLabel = "it should end in front of this tag";
        finding.strOther = open.strNext;
    } else if ( open.bHasChild ) {
        finding.strHint = strWrite;
    }
    return finding;
}

/// No element of that name is open. If tags in front of the end tag are indented more than it, they stand in that
/// element.
SyntaxFinding OpenTags::describeMissingBegin( std::string_view in_strName, std::string_view in_strEndTag ) const {
    const Open& open = m_vecOpen.back();
    const auto itFirst = std::find_if( open.vecChildren.begin(), open.vecChildren.end(),
                                       [this]( const Indented& in_child ) { return in_child.uIndent > m_uIndent; } );
    if ( m_uIndent != std::string_view::npos && itFirst != open.vecChildren.end() )
        return { itFirst->strTag, joinTexts( { "a tag <", in_strName, " ...> is missing in front of this one" } ),
                 "write it, or remove the end tag", "its end tag stands here", in_strEndTag };
    return { in_strEndTag, joinTexts( { "no element ", in_strName, " is open here" } ),
             joinTexts( { "remove this end tag, or write the tag <", in_strName, " ...> where the element begins" } ),
             joinTexts( { open.strName, " is open since here" } ), open.strTag };
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
        for ( const Open& open : m_vecOpen ) {
            strPath += joinTexts( { "/", open.strName } );
            strEnds.insert( 0, joinTexts( { "</", open.strName, ">" } ) );
        }
        finding.strMessage += ", inside " + strPath;
        finding.strHint += ", at least " + strEnds;
    }
    if ( !m_vecOpen.empty() ) {
        finding.strLabel = "opened here";
        finding.strOther = m_vecOpen.back().strTag;
    }
    return finding;
}

/// The text in the innermost element that may be its end tag; null when there is none.
const std::string_view* OpenTags::findLostEnd() const {
    const auto itText = m_vecOpen.empty() ? m_mapTexts.end() : m_mapTexts.find( getName() );
    return itText != m_mapTexts.end() && itText->second.data() > m_vecOpen.back().strTag.data() ? &itText->second
                                                                                                : nullptr;
}

SyntaxFinding OpenTags::describeLostEnd() const {
    const std::string_view strText = *findLostEnd();
    const std::string_view strLost = strText[0] == '/' ? "a < is" : "the characters </ are";
    return { strText, joinTexts( { strLost, " missing in front of ", strText } ),
             joinTexts( { "write </", getName(), ">" } ), "opened here", m_vecOpen.back().strTag };
}

} // namespace Velquin::Pstn

#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "document/SyntaxScan.h"

namespace Velquin::Pstn {

/// The elements that are open where a text is read, and what is to be said when an end tag doesn't fit to them. Keeps
/// pieces of the text.
class OpenTags {
public:
    bool isEmpty() const noexcept { return m_vecOpen.empty(); }
    /// The name of the innermost element; there must be one.
    std::string_view getName() const noexcept { return m_vecOpen.back().strName; }

    /// @param in_strTag the character < and the name
    void open( std::string_view in_strTag );
    void close() { m_vecOpen.pop_back(); }
    /// An element that its start tag ended, with the characters `/>`.
    void addEnded( std::string_view in_strName, std::string_view in_strEnd );
    /// What stands between two tags: it may be a tag that lost its first character.
    void addText( std::string_view in_strText );

    /// Why an end tag with that name can't end the innermost element.
    SyntaxFinding describeMismatch( std::string_view in_strName, std::string_view in_strEndTag ) const;
    /// That the text ends here.
    /// @param in_strLast its last character that is no blank
    /// @param in_strInside what it ends in, if not between two tags
    SyntaxFinding describeEnd( std::string_view in_strLast, const std::string& in_strInside ) const;

private:
    struct Tag {
        std::string_view strName;
        std::string_view strPlace;     ///< of an open element `<` and its name, of an ended one `/>`
        const char* pParent = nullptr; ///< where the tag of its parent begins
    };

    const char* getParent() const { return m_vecOpen.empty() ? nullptr : m_vecOpen.back().strPlace.data(); }
    bool isOpen( std::string_view in_strName ) const;
    const std::string_view* findLostEnd() const;
    SyntaxFinding describeLostEnd() const;

    std::vector<Tag> m_vecOpen;
    std::map<std::string_view, Tag> m_mapEnded; ///< by its name, the last element that a start tag with /> ended
    std::map<std::string_view, std::string_view> m_mapTexts; ///< by its name, the last text that may be a tag
};

} // namespace Velquin::Pstn

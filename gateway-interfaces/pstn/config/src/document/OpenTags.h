#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "document/SyntaxScan.h"

namespace Velquin::Pstn {

/// The elements that are open where a text is read, and what is to be said when an end tag doesn't fit to them. Most
/// files are indented: so the columns of the tags tell where one is missing. Keeps pieces of the text.
class OpenTags {
public:
    bool isEmpty() const noexcept { return m_vecOpen.empty(); }
    /// The name of the innermost element; there must be one.
    std::string_view getName() const noexcept { return m_vecOpen.back().strName; }

    /// What stands in front of a tag, from the tag or comment before on.
    void addText( std::string_view in_strText );
    /// @param in_strTag the character < and the name
    /// @param in_strEnd what ends the tag: >, or /> where that ends the element, too
    void begin( std::string_view in_strTag, std::string_view in_strEnd );
    void close() { m_vecOpen.pop_back(); }

    /// Why an end tag with that name can't end the innermost element.
    SyntaxFinding describeMismatch( std::string_view in_strName, std::string_view in_strEndTag ) const;
    /// That the text ends here.
    /// @param in_strLast its last character that is no blank
    /// @param in_strInside what it ends in, if not between two tags
    SyntaxFinding describeEnd( std::string_view in_strLast, const std::string& in_strInside ) const;

private:
    /// A tag that begins a line.
    struct Indented {
        std::string_view strTag;
        std::size_t uIndent;
    };
    struct Open {
        std::string_view strName;
        std::string_view strTag;
        std::size_t uIndent;
        bool bHasChild = false;
        bool bHadChild = false;              ///< whether one stands in front of strNext
        std::string_view strNext{};          ///< the first tag in it that is indented no more than its own
        std::vector<Indented> vecChildren{}; ///< each indented more than the one before; the first ones of their runs
    };
    struct Ended {
        std::string_view strEnd;
        const char* pParent = nullptr; ///< where the tag of its parent begins
        std::size_t uTags = 0;         ///< how many had begun by then
    };

    bool isOpen( std::string_view in_strName ) const;
    const std::string_view* findLostEnd() const;
    SyntaxFinding describeLostEnd() const;
    SyntaxFinding describeMissingEnd( std::string_view in_strName, std::string_view in_strEndTag ) const;
    SyntaxFinding describeMissingBegin( std::string_view in_strName, std::string_view in_strEndTag ) const;

    std::vector<Open> m_vecOpen;
    std::map<std::string_view, Ended> m_mapEnded; ///< by its name, the last element that a start tag with /> ended
    std::map<std::string_view, std::string_view> m_mapTexts; ///< by its name, the last text that may be a tag
    std::size_t m_uIndent = std::string_view::npos;          ///< of the next tag; npos unless it begins a line
    std::size_t m_uTags = 0;
};

} // namespace Velquin::Pstn

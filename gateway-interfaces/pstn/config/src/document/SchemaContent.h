#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/Element.h"
#include "document/SchemaPatterns.h"

namespace Velquin::Pstn {

/// What the schema lets stand in an element: which children in front of which, whether text, whether attributes with a
/// prefix.
class SchemaContent {
public:
    /// A child, and the name under which it is looked at: its own, or the one that is meant.
    struct Child {
        xmlNode* pElement;
        std::string strName;

        bool isRenamed() const { return strName != getElementName( pElement ); }
    };
    /// Why a child can't stand where it stands.
    enum class Reason {
        TWICE,           ///< the other one has the same name
        BELONGS_FORWARD, ///< it must stand in front of the other one
        BELONGS_BEHIND,  ///< it must stand behind the other one
        EXCLUDED,        ///< one of the two may stand there, not both
    };
    struct Misplaced {
        xmlNode* pChild;
        xmlNode* pOther;
        Reason eReason;
    };

    /// @param in_vecPatterns the patterns of the element
    SchemaContent( SchemaPatterns& in_patterns, const SchemaPatterns::Patterns& in_vecPatterns );

    bool takesText() const noexcept { return m_bOpen || m_bText; }
    bool takesPrefixedAttributes() const noexcept { return m_bOpen || m_bPrefixes; }

    /// The fewest children, ten at most, without which the others stand as the schema wants them.
    /// @param in_vecChildren children of the element, all of names that the schema knows there
    std::vector<Misplaced> findMisplaced( std::vector<Child> in_vecChildren ) const;

private:
    static constexpr std::size_t MAX_NAMES = 64;
    using Names = std::uint64_t; ///< a bit for each name

    Names collect( SchemaPatterns& in_patterns, const xmlNode* in_pPattern );
    Names collectContent( SchemaPatterns& in_patterns, const xmlNode* in_pPattern, bool in_bForward,
                          bool in_bBackward );
    Names takeName( std::string_view in_strName );
    void allow( Names in_first, Names in_behind ) noexcept;
    bool mayPrecede( std::size_t in_uFirst, std::size_t in_uBehind ) const noexcept {
        return ( m_aInFront[in_uBehind] >> in_uFirst & 1 ) != 0;
    }
    std::vector<std::size_t> countConflicts( const std::vector<std::size_t>& in_vecNames ) const;
    Misplaced explain( const std::vector<Child>& in_vecChildren, const std::vector<std::size_t>& in_vecNames,
                       std::size_t in_uChild ) const;

    std::vector<std::string> m_vecNames;
    std::array<Names, MAX_NAMES> m_aInFront{}; ///< which names may stand in front of a name
    bool m_bText = false;
    bool m_bPrefixes = false;
    bool m_bOpen = false; ///< whether the schema can't be followed, or has too many names for this class
};

} // namespace Velquin::Pstn

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "reading/XmlNodeFwd.h"

namespace Velquin::Pstn {

/// Finds the elements from which the parts of a model were read, and counts what stands in the document. It looks
/// through the document once, when it is first asked: nobody asks about a model without faults.
class ModelLocator {
public:
    struct Place {
        const xmlNode* pElement = nullptr; ///< null when no element was found
        std::string strPath;               ///< the element's XPath
    };

    /// What an element stands for, as a text: its kind and its identifiers. The kind of a board is ANALOG_BOARD or
    /// DIGITAL_BOARD, that of anything else the name of its element.
    class Key {
    public:
        template <class... TIds>
        explicit Key( std::string_view in_strKind, const TIds&... in_ids ) : m_strText( in_strKind ) {
            ( append( in_ids ), ... );
        }
        /// What stands in the element, by further identifiers.
        template <class... TIds>
        Key with( const TIds&... in_ids ) const {
            Key key = *this;
            ( key.append( in_ids ), ... );
            return key;
        }
        const std::string& getText() const noexcept { return m_strText; }

    private:
        void append( unsigned long long in_ullId ) { m_strText.append( ":" ).append( std::to_string( in_ullId ) ); }
        void append( std::string_view in_strId ) { m_strText.append( ":" ).append( in_strId ); }

        std::string m_strText;
    };

    static constexpr const char* ANALOG_BOARD = "analogBoard";
    static constexpr const char* DIGITAL_BOARD = "digitalBoard";
    /// Instead of an interface's identifier: all interfaces of the board.
    static constexpr const char* ALL_INTERFACES = "*";

    explicit ModelLocator( const xmlNode* in_pRoot ) noexcept : m_pRoot( in_pRoot ) {}

    /// The place of the board or, if an interface identifier is given, of the interface.
    Place find( bool in_bAnalog, unsigned int in_uBoardId, std::optional<unsigned int> in_uInterfaceId );

    /// The first element that stands for that: a board, an interface (board, interface), a provider, a channel group,
    /// an entry of the physical or call control configuration (ID), its reference to an interface (ID, board,
    /// interface), or a B-channel range in that (..., first, last, channel group).
    /// @param in_strBelow where to go from there: "inboundCallHandling/connect" to a child of a child, ".." to the
    ///        parent; a name that ends with a star stands for all that begin like it
    Place find( const Key& in_key, std::string_view in_strBelow = {} );

    bool contains( const Key& in_key );
    /// The number of child elements; 0 for an element that isn't there.
    std::size_t countChildren( const Key& in_key, std::string_view in_strBelow );
    /// The number of B-channel ranges that the ISDN groups give to an interface.
    std::size_t countRanges( unsigned int in_uBoardId, unsigned int in_uInterfaceId );
    /// Whether any element names that channel group, or names one that isn't there, and may mean this one.
    bool mayBeFilled( std::string_view in_strChannelGroup );

private:
    struct Element {
        const xmlNode* pElement;
        std::uint32_t uParent;
        std::uint32_t uPosition;   ///< among the siblings of its name, from 1; 0 when it is the only one
        std::uint32_t uFirstChild; ///< the children stand behind each other
        std::uint32_t uEndOfChildren;
    };

    static constexpr std::uint32_t NONE = UINT32_MAX;

    void gather();
    void gatherChildren( std::uint32_t in_uParent );
    void indexBoards( std::uint32_t in_uBoards );
    void indexEntries( std::uint32_t in_uSection );
    void indexReferences( std::uint32_t in_uReferences, const Key& in_entry );
    void add( const Key& in_key, std::uint32_t in_uElement );
    std::uint32_t findElement( const Key& in_key, std::string_view in_strBelow );
    std::uint32_t findChild( std::uint32_t in_uElement, std::string_view in_strNames ) const;
    std::string composePath( std::uint32_t in_uElement ) const;

    const xmlNode* m_pRoot;
    std::vector<Element> m_vecElements; ///< the root, its children, their children ...
    std::unordered_map<std::string, std::uint32_t> m_mapElements;
    std::unordered_map<std::string, std::size_t> m_mapRanges; ///< their number, by board and interface
    std::unordered_set<std::string> m_setFilledGroups;        ///< the channel groups that something names
    bool m_bUnknownGroup = false;                             ///< whether one of them isn't there
};

} // namespace Velquin::Pstn

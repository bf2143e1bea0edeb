#pragma once

#include <map>
#include <optional>
#include <utility>
#include <vector>

#include <libxml/tree.h>

namespace Velquin::Pstn {

/// Finds the element from which a board or an interface was read. What it needs it gathers when it is asked, board by
/// board: only a model that is at fault is asked about.
class ModelLocator {
public:
    explicit ModelLocator( const xmlNode* in_pRoot ) noexcept : m_pRoot( in_pRoot ) {}

    /// The element of the board or, when its identifier is given, of the interface; null when there is none.
    const xmlNode* find( bool in_bAnalog, unsigned int in_uBoardId, std::optional<unsigned int> in_uInterfaceId );

private:
    using Elements = std::vector<std::pair<unsigned int, const xmlNode*>>; ///< ascending by identifier

    void gatherBoards();

    const xmlNode* m_pRoot;
    bool m_bGathered = false;
    Elements m_analogBoards;
    Elements m_digitalBoards;
    std::map<const xmlNode*, Elements> m_mapInterfaces; ///< of the boards that were asked about
};

} // namespace Velquin::Pstn

#pragma once

#include <map>
#include <optional>
#include <string>
#include <tuple>

#include <libxml/tree.h>

namespace Velquin::Pstn {

/// Finds the element from which a board or an interface was read. What it needs it gathers at the first question: only
/// a model that is at fault is asked about.
class ModelLocator {
public:
    explicit ModelLocator( const xmlNode* in_pRoot ) noexcept : m_pRoot( in_pRoot ) {}

    struct Place {
        const xmlNode* pElement = nullptr;
        std::string strPath;
    };

    /// The element of the board or, when its identifier is given, of the interface; null when there is none.
    const Place& find( bool in_bAnalog, unsigned int in_uBoardId, std::optional<unsigned int> in_uInterfaceId );

private:
    using Key = std::tuple<bool, unsigned int, std::optional<unsigned int>>;

    void gather();

    const xmlNode* m_pRoot;
    bool m_bGathered = false;
    std::map<Key, Place> m_mapElements;
};

} // namespace Velquin::Pstn

#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "reading/Number.h"
#include "reading/XmlNodeFwd.h"

namespace Velquin::Pstn {

/// Finds the element from which a board or an interface was read. It looks through a board only when it is asked about
/// that board: nobody asks about a model without faults.
class ModelLocator {
public:
    struct Place {
        const xmlNode* pElement = nullptr; ///< null when no element was found
        std::string strPath;               ///< the element's XPath
    };

    explicit ModelLocator( const xmlNode* in_pRoot ) noexcept : m_pRoot( in_pRoot ) {}

    /// The place of the board or, if an interface identifier is given, of the interface.
    Place find( bool in_bAnalog, unsigned int in_uBoardId, std::optional<unsigned int> in_uInterfaceId );

private:
    struct Element {
        unsigned int uId;
        const xmlNode* pElement;
        unsigned long ulPosition; ///< among the siblings of its name, from 1; 0 when it is the only one
    };
    using Elements = std::vector<Element>; ///< ascending by identifier

    static Elements gather( const xmlNode* in_pParent, NumberPolicy in_ePolicy );
    static const Element* find( const Elements& in_elements, unsigned int in_uId );
    static std::string composePath( const std::string& in_strParent, const Element& in_element );

    void gatherBoards();

    const xmlNode* m_pRoot;
    bool m_bGathered = false;
    std::string m_strPathOfBoards;
    Elements m_analogBoards;
    Elements m_digitalBoards;
    std::map<const xmlNode*, Elements> m_mapInterfaces; ///< of the boards that were asked about
};

} // namespace Velquin::Pstn

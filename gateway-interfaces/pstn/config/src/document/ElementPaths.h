#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "document/LibXml2.h"

namespace Velquin::Pstn {

/// Makes the paths of many elements cheap while it lives, on its thread: counts the siblings of a document's elements
/// once, where libxml2 would count them for each path.
class ElementPaths {
public:
    ElementPaths() noexcept;
    ElementPaths( const ElementPaths& ) = delete;
    ElementPaths& operator=( const ElementPaths& ) = delete;
    ~ElementPaths();

    /// The XPath of an element of a document of this library; empty when the path has a namespace.
    std::string find( const xmlNode* in_pElement );

    /// Keeps the name of an element that gets another one.
    void keepName( const xmlNode* in_pElement );

    /// Null when there is none.
    static ElementPaths* getCurrent() noexcept;

private:
    void countOnce( const xmlDoc* in_pDocument );
    void count( const xmlNode* in_pParent );

    const xmlDoc* m_pDocument = nullptr;
    std::vector<std::uint32_t> m_vecPositions;        ///< by the number of the element; 0 for the only one of its name
    std::map<const xmlNode*, std::string> m_mapNames; ///< names that elements had
    ElementPaths* m_pOuter;
};

} // namespace Velquin::Pstn

#include "document/ElementPaths.h"

#include <map>
#include <string_view>
#include <utility>

#include "document/Element.h"
#include "reading/ChildElements.h"

namespace Velquin::Pstn {

namespace {

thread_local ElementPaths* t_pPaths = nullptr;

} // namespace

ElementPaths::ElementPaths() noexcept : m_pOuter( std::exchange( t_pPaths, this ) ) {}

ElementPaths::~ElementPaths() {
    t_pPaths = m_pOuter;
}

ElementPaths* ElementPaths::getCurrent() noexcept {
    return t_pPaths;
}

std::string ElementPaths::find( const xmlNode* in_pElement ) {
    countOnce( in_pElement->doc );
    std::string strPath;
    for ( const xmlNode* p = in_pElement; p; p = getParentElement( p ) ) {
        if ( p->ns )
            return {};
        const std::uint32_t uPosition = m_vecPositions[getElementNumber( p )];
        const auto itName = m_mapNames.find( p );
        strPath.insert( 0, "/" + ( itName == m_mapNames.end() ? getElementName( p ) : itName->second ) +
                               ( uPosition == 0 ? std::string() : "[" + std::to_string( uPosition ) + "]" ) );
    }
    return strPath;
}

void ElementPaths::keepName( const xmlNode* in_pElement ) {
    countOnce( in_pElement->doc );
    m_mapNames.try_emplace( in_pElement, getElementName( in_pElement ) );
}

void ElementPaths::countOnce( const xmlDoc* in_pDocument ) {
    if ( m_pDocument == in_pDocument )
        return;
    m_pDocument = in_pDocument;
    m_vecPositions.clear();
    m_mapNames.clear();
    count( reinterpret_cast<const xmlNode*>( m_pDocument ) );
}

void ElementPaths::count( const xmlNode* in_pParent ) {
    std::map<std::string_view, std::uint32_t> mapCounts;
    for ( const xmlNode* const pChild : ChildElements( in_pParent ) ) {
        const std::size_t uNumber = getElementNumber( pChild );
        if ( m_vecPositions.size() <= uNumber )
            m_vecPositions.resize( uNumber + 1 );
        m_vecPositions[uNumber] = ++mapCounts[getElementName( pChild )];
        count( pChild );
    }
    for ( const xmlNode* const pChild : ChildElements( in_pParent ) ) {
        if ( mapCounts[getElementName( pChild )] == 1 )
            m_vecPositions[getElementNumber( pChild )] = 0;
    }
}

} // namespace Velquin::Pstn

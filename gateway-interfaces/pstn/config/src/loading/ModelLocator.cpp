#include "loading/ModelLocator.h"

#include <algorithm>
#include <string_view>

#include "xml/ChildElements.h"
#include "xml/ElementPosition.h"
#include "xml/LibXml2.h"

namespace Velquin::Pstn {

namespace {

template <class Elements>
const xmlNode* findElement( const Elements& in_elements, unsigned int in_uId ) {
    const auto isBefore = []( const auto& in_element, unsigned int in_uOther ) { return in_element.first < in_uOther; };
    const auto it = std::lower_bound( in_elements.begin(), in_elements.end(), in_uId, isBefore );
    return it != in_elements.end() && it->first == in_uId ? it->second : nullptr;
}

} // namespace

const xmlNode* ModelLocator::find( bool in_bAnalog, unsigned int in_uBoardId,
                                   std::optional<unsigned int> in_uInterfaceId ) {
    if ( !m_bGathered )
        gatherBoards();
    const xmlNode* const pBoard = findElement( in_bAnalog ? m_analogBoards : m_digitalBoards, in_uBoardId );
    if ( !pBoard || !in_uInterfaceId )
        return pBoard;
    const auto [it, bNew] = m_mapInterfaces.try_emplace( pBoard );
    Elements& interfaces = it->second;
    if ( bNew ) {
        for ( const xmlNode* const pInterface : ChildElements( pBoard ) )
            interfaces.emplace_back( getElementId( pInterface ), pInterface );
        std::sort( interfaces.begin(), interfaces.end() );
    }
    return findElement( interfaces, *in_uInterfaceId );
}

void ModelLocator::gatherBoards() {
    m_bGathered = true;
    const xmlNode* const pBoards = XML::findFirstElement( m_pRoot, "boards" );
    if ( !pBoards )
        return;
    for ( const xmlNode* const pBoard : ChildElements( pBoards ) ) {
        const bool bAnalog = std::string_view( fromXml( pBoard->name ) ) == "tirvanaAnalogBoard";
        ( bAnalog ? m_analogBoards : m_digitalBoards ).emplace_back( getElementId( pBoard ), pBoard );
    }
    std::sort( m_analogBoards.begin(), m_analogBoards.end() );
    std::sort( m_digitalBoards.begin(), m_digitalBoards.end() );
}

} // namespace Velquin::Pstn

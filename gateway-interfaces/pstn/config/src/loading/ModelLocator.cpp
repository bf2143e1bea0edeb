#include "loading/ModelLocator.h"

#include <algorithm>
#include <string_view>

#include "document/Element.h"
#include "reading/ChildElements.h"

namespace Velquin::Pstn {

namespace {

/// The identifier of a board or an interface, as its reader reads it.
unsigned int readId( const xmlNode* in_pElement, NumberPolicy in_ePolicy ) {
    AttributeText id;
    static_cast<void>( findAttribute( in_pElement, "ID", id ) );
    return parseNumber<unsigned int>( id.view(), in_ePolicy ).value_or( 0 );
}

} // namespace

ModelLocator::Place ModelLocator::find( bool in_bAnalog, unsigned int in_uBoardId,
                                        std::optional<unsigned int> in_uInterfaceId ) {
    if ( !m_bGathered )
        gatherBoards();
    const Element* const pBoard = find( in_bAnalog ? m_analogBoards : m_digitalBoards, in_uBoardId );
    if ( !pBoard )
        return {};
    const std::string strBoardPath = composePath( m_strPathOfBoards, *pBoard );
    if ( !in_uInterfaceId )
        return { pBoard->pElement, strBoardPath };
    const auto [it, bNew] = m_mapInterfaces.try_emplace( pBoard->pElement );
    if ( bNew )
        it->second = gather( pBoard->pElement, NumberPolicy::LEADING );
    const Element* const pInterface = find( it->second, *in_uInterfaceId );
    return pInterface ? Place{ pInterface->pElement, composePath( strBoardPath, *pInterface ) } : Place{};
}

ModelLocator::Elements ModelLocator::gather( const xmlNode* in_pParent, NumberPolicy in_ePolicy ) {
    // Not xmlGetNodePath: it would count the siblings again for each path.
    std::map<std::string_view, unsigned long> mapCounts;
    Elements elements;
    for ( const xmlNode* const pElement : ChildElements( in_pParent ) )
        elements.push_back( { readId( pElement, in_ePolicy ), pElement, ++mapCounts[getElementName( pElement )] } );
    for ( Element& element : elements ) {
        if ( mapCounts[getElementName( element.pElement )] == 1 )
            element.ulPosition = 0;
    }
    std::sort( elements.begin(), elements.end(),
               []( const Element& in_x, const Element& in_y ) { return in_x.uId < in_y.uId; } );
    return elements;
}

const ModelLocator::Element* ModelLocator::find( const Elements& in_elements, unsigned int in_uId ) {
    const auto isBefore = []( const Element& in_element, unsigned int in_uOther ) {
        return in_element.uId < in_uOther;
    };
    const auto it = std::lower_bound( in_elements.begin(), in_elements.end(), in_uId, isBefore );
    return it != in_elements.end() && it->uId == in_uId ? &*it : nullptr;
}

std::string ModelLocator::composePath( const std::string& in_strParent, const Element& in_element ) {
    if ( hasNamespace( in_element.pElement ) )
        return getElementPath( in_element.pElement );
    std::string strPath = in_strParent + "/" + getElementName( in_element.pElement );
    if ( in_element.ulPosition != 0 )
        strPath.append( "[" ).append( std::to_string( in_element.ulPosition ) ).append( "]" );
    return strPath;
}

void ModelLocator::gatherBoards() {
    m_bGathered = true;
    const xmlNode* const pBoards = XML::findFirstElement( m_pRoot, "boards" );
    if ( !pBoards )
        return;
    m_strPathOfBoards = getElementPath( pBoards );
    for ( const Element& board : gather( pBoards, NumberPolicy::WHOLE ) ) {
        const bool bAnalog = std::string_view( getElementName( board.pElement ) ) == "tirvanaAnalogBoard";
        ( bAnalog ? m_analogBoards : m_digitalBoards ).push_back( board );
    }
}

} // namespace Velquin::Pstn

#include "loading/ModelLocator.h"

#include <string_view>
#include <utility>

#include <velquin/XML.h>

#include "xml/ChildElements.h"
#include "xml/ElementPosition.h"
#include "xml/LibXml2.h"
#include "xml/Number.h"

namespace Velquin::Pstn {

namespace {

std::optional<unsigned int> getId( xmlNode* in_pElement ) {
    const XmlStringPtr pId( xmlGetNoNsProp( in_pElement, toXml( "ID" ) ) );
    return parseNumber<unsigned int>( fromXml( pId.get() ), NumberPolicy::LEADING );
}

/// The paths of an element's children, one after the other. libxml2 counts all siblings for each.
class PathsOfChildren {
public:
    PathsOfChildren( const xmlNode* in_pParent, std::string in_strPath ) : m_strPath( std::move( in_strPath ) ) {
        for ( const xmlNode* const pChild : ChildElements( in_pParent ) )
            ++m_mapCounts[fromXml( pChild->name )].uAll;
    }

    std::string next( const xmlNode* in_pChild ) {
        if ( in_pChild->ns )
            return getElementPath( in_pChild );
        Count& count = m_mapCounts[fromXml( in_pChild->name )];
        std::string strPath = m_strPath + "/" + fromXml( in_pChild->name );
        ++count.uSeen;
        return count.uAll == 1 ? strPath : strPath + "[" + std::to_string( count.uSeen ) + "]";
    }

private:
    struct Count {
        unsigned long uAll = 0;
        unsigned long uSeen = 0;
    };

    std::string m_strPath;
    std::map<std::string_view, Count> m_mapCounts;
};

} // namespace

const ModelLocator::Place& ModelLocator::find( bool in_bAnalog, unsigned int in_uBoardId,
                                               std::optional<unsigned int> in_uInterfaceId ) {
    static const Place s_none;
    if ( !m_bGathered )
        gather();
    const auto it = m_mapElements.find( Key( in_bAnalog, in_uBoardId, in_uInterfaceId ) );
    return it == m_mapElements.end() ? s_none : it->second;
}

void ModelLocator::gather() {
    m_bGathered = true;
    const xmlNode* const pBoards = XML::findFirstElement( m_pRoot, "boards" );
    if ( !pBoards )
        return;
    PathsOfChildren boardPaths( pBoards, getElementPath( pBoards ) );
    for ( xmlNode* const pBoard : ChildElements( pBoards ) ) {
        const std::string strBoardPath = boardPaths.next( pBoard );
        const bool bAnalog = std::string_view( fromXml( pBoard->name ) ) == "tirvanaAnalogBoard";
        const std::optional<unsigned int> uBoardId = getId( pBoard );
        if ( !uBoardId )
            continue;
        m_mapElements.try_emplace( Key( bAnalog, *uBoardId, std::nullopt ), Place{ pBoard, strBoardPath } );
        PathsOfChildren interfacePaths( pBoard, strBoardPath );
        for ( xmlNode* const pInterface : ChildElements( pBoard ) )
            m_mapElements.try_emplace( Key( bAnalog, *uBoardId, getId( pInterface ) ),
                                       Place{ pInterface, interfacePaths.next( pInterface ) } );
    }
}

} // namespace Velquin::Pstn

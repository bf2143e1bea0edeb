#include "loading/ModelLocator.h"

#include <string_view>

#include <velquin/XML.h>

#include "xml/ChildElements.h"
#include "xml/LibXml2.h"
#include "xml/Number.h"

namespace Velquin::Pstn {

namespace {

std::optional<unsigned int> getId( xmlNode* in_pElement ) {
    const XmlStringPtr pId( xmlGetNoNsProp( in_pElement, toXml( "ID" ) ) );
    return parseNumber<unsigned int>( fromXml( pId.get() ), NumberPolicy::LEADING );
}

} // namespace

const xmlNode* ModelLocator::find( bool in_bAnalog, unsigned int in_uBoardId,
                                   std::optional<unsigned int> in_uInterfaceId ) {
    if ( !m_bGathered )
        gather();
    const auto it = m_mapElements.find( Key( in_bAnalog, in_uBoardId, in_uInterfaceId ) );
    return it == m_mapElements.end() ? nullptr : it->second;
}

void ModelLocator::gather() {
    m_bGathered = true;
    const xmlNode* const pBoards = XML::findFirstElement( m_pRoot, "boards" );
    if ( !pBoards )
        return;
    for ( xmlNode* const pBoard : ChildElements( pBoards ) ) {
        const bool bAnalog = std::string_view( fromXml( pBoard->name ) ) == "tirvanaAnalogBoard";
        const std::optional<unsigned int> uBoardId = getId( pBoard );
        if ( !uBoardId )
            continue;
        m_mapElements.try_emplace( Key( bAnalog, *uBoardId, std::nullopt ), pBoard );
        for ( xmlNode* const pInterface : ChildElements( pBoard ) )
            m_mapElements.try_emplace( Key( bAnalog, *uBoardId, getId( pInterface ) ), pInterface );
    }
}

} // namespace Velquin::Pstn

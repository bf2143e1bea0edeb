#include "hardware/InterfaceConfig.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "Setters.h"
#include "hardware/BoardConfig.h"
#include "hardware/DisplayName.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( InterfaceConfig );

namespace {

std::string concatenate( std::initializer_list<std::string_view> in_parts ) {
    std::size_t uSize = 0;
    for ( const std::string_view strPart : in_parts )
        uSize += strPart.size();
    std::string strText( uSize, '\0' ); // not a byte more: a large model keeps thousands of these texts
    auto it = strText.begin();
    for ( const std::string_view strPart : in_parts )
        it = std::copy( strPart.begin(), strPart.end(), it );
    return strText;
}

} // namespace

bool InterfaceConfig::setDisplayName( const char* in_szDisplayName ) {
    return assignDisplayName( m_strDisplayName, in_szDisplayName, getLogger() );
}

bool InterfaceConfig::setBoardConfig( LimitedObjPtr<const BoardConfig> in_pBoardConfig ) {
    return setNotNull( m_pBoardConfig, in_pBoardConfig, "!in_pBoardConfig.isNull()" );
}

const char* InterfaceConfig::composeUniqueId( bool in_bShort, const char* in_szKind ) const try {
    std::string& strUniqueId = in_bShort ? m_strShortUniqueId : m_strLongUniqueId;
    if ( strUniqueId.empty() && VELQUIN_ASSERT( !getBoardConfig().isNull() ) ) {
        const std::string strBoardId = std::to_string( m_pBoardConfig->getId() );
        const std::string strId = std::to_string( m_uId );
        strUniqueId = in_bShort ? concatenate( { "b", strBoardId, in_szKind, strId } )
                                : concatenate( { "b", strBoardId, "(", m_pBoardConfig->getDisplayName(), ")", in_szKind,
                                                 strId, "(", m_strDisplayName, ")" } );
    }
    return strUniqueId.c_str();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), "" )

} // namespace Velquin::Pstn

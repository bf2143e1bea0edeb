#include "hardware/InterfaceConfig.h"

#include <utility>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "hardware/BoardConfig.h"
#include "hardware/DisplayName.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( InterfaceConfig );

bool InterfaceConfig::setDisplayName( const char* in_szDisplayName ) {
    return assignDisplayName( m_strDisplayName, in_szDisplayName, getLogger() );
}

bool InterfaceConfig::setBoardConfig( LimitedObjPtr<const BoardConfig> in_pBoardConfig ) try {
    if ( !VELQUIN_ASSERT( !in_pBoardConfig.isNull() ) )
        return false;
    m_pBoardConfig = in_pBoardConfig;
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

const char* InterfaceConfig::composeUniqueId( bool in_bShort, const char* in_szKind ) const try {
    std::string& strUniqueId = in_bShort ? m_strShortUniqueId : m_strLongUniqueId;
    if ( strUniqueId.empty() && VELQUIN_ASSERT( !getBoardConfig().isNull() ) ) {
        std::string strComposed;
        const auto append = [&strComposed, in_bShort]( const char* in_szPrefix, unsigned int in_uId,
                                                       const char* in_szName ) {
            strComposed.append( in_szPrefix ).append( std::to_string( in_uId ) );
            if ( !in_bShort )
                strComposed.append( "(" ).append( in_szName ).append( ")" );
        };
        append( "b", m_pBoardConfig->getId(), m_pBoardConfig->getDisplayName() );
        append( in_szKind, m_uId, getDisplayName() );
        strUniqueId = std::move( strComposed );
    }
    return strUniqueId.c_str();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), "" )

} // namespace Velquin::Pstn

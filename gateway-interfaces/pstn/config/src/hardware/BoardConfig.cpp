#include "hardware/BoardConfig.h"

#include "Text.h"
#include "hardware/DisplayName.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( BoardConfig );

bool BoardConfig::setDisplayName( const char* in_szDisplayName ) {
    return assignDisplayName( m_strDisplayName, in_szDisplayName, getLogger() );
}

bool BoardConfig::setModel( const char* in_szModel ) {
    return assignText( m_strModel, in_szModel, getLogger() );
}

} // namespace Velquin::Pstn

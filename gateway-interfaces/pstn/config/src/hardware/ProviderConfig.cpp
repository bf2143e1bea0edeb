#include "hardware/ProviderConfig.h"

#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( ProviderConfig );

bool ProviderConfig::setId( const char* in_szId ) {
    return assignText( m_strId, in_szId, getLogger() );
}

} // namespace Velquin::Pstn

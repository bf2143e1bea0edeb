#include "physical/DChannelConfig.h"

#include <velquin/TraceScope.h>

#include "Text.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DChannelConfig );

DChannelConfig::DChannelConfig() {
    VELQUIN_TRACE_SCOPE( getLogger(), "DChannelConfig::DChannelConfig" );
}

bool DChannelConfig::setPcapFilesFolder( const char* in_szPcapFilesFolder ) {
    return assignText( m_strPcapFilesFolder, in_szPcapFilesFolder, getLogger() );
}

} // namespace Velquin::Pstn

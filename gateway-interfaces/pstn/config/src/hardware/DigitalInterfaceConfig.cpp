#include "hardware/DigitalInterfaceConfig.h"

#include <utility>

#include <velquin/Finding.h>

#include "Setters.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalInterfaceConfig );

bool DigitalInterfaceConfig::setPhysicalConfig( TSHandle<DigitalInterfacePhysicalConfig> in_hPhysicalConfig ) {
    return setNotNull( m_hPhysicalConfig, std::move( in_hPhysicalConfig ), "!in_hPhysicalConfig.isNull()" );
}

bool DigitalInterfaceConfig::hasDChannel() const try {
    if ( m_hPhysicalConfig.isNull() ) {
        VELQUIN_REPORT_WARNING( getLogger(),
                                "digital interface \"" << getUniqueId( false ) << "\" has no physical configuration" );
        return false;
    }
    return m_hPhysicalConfig->hasDChannel();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

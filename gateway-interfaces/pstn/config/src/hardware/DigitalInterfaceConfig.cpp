#include "hardware/DigitalInterfaceConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalInterfaceConfig );

bool DigitalInterfaceConfig::setPhysicalConfig( TSHandle<DigitalInterfacePhysicalConfig> in_hPhysicalConfig ) try {
    if ( !VELQUIN_ASSERT( !in_hPhysicalConfig.isNull() ) )
        return false;
    m_hPhysicalConfig = std::move( in_hPhysicalConfig );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

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

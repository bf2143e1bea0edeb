#include "hardware/DigitalInterfaceConfig.h"

#include <utility>

#include <velquin/Finding.h>

#include "RuleNames.h"
#include "Setters.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalInterfaceConfig );

bool DigitalInterfaceConfig::setPhysicalConfig( TSHandle<DigitalInterfacePhysicalConfig> in_hPhysicalConfig ) {
    return setNotNull( m_hPhysicalConfig, std::move( in_hPhysicalConfig ), "!in_hPhysicalConfig.isNull()" );
}

bool DigitalInterfaceConfig::hasDChannel() const try {
    if ( m_hPhysicalConfig.isNull() ) {
        Finding finding;
        finding.nLevel = Logger::WARNING_LEVEL;
        finding.strRule = Rules::NO_PHYSICAL_CONFIG;
        finding.strText =
            std::string( "digital interface \"" ) + getUniqueId( false ) + "\" has no physical configuration";
        reportFinding( getLogger(), std::move( finding ), __FILE__, __LINE__ );
        return false;
    }
    return m_hPhysicalConfig->hasDChannel();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

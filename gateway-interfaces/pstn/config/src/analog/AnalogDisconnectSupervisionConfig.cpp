#include "analog/AnalogDisconnectSupervisionConfig.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "RuleNames.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogDisconnectSupervisionConfig );

bool AnalogDisconnectSupervisionConfig::addDisconnectDetector(
    AnalogDisconnectDetectorConfig* in_pDetectorConfig ) try {
    const TSHandle<AnalogDisconnectDetectorConfig> pDetectorConfig( in_pDetectorConfig );
    if ( !VELQUIN_ASSERT( !pDetectorConfig.isNull() ) )
        return false;
    VELQUIN_LOG_DEBUG( getLogger(), "adding disconnect detector " << pDetectorConfig->getName() );
    if ( m_mapDetectors.try_emplace( pDetectorConfig->getName(), pDetectorConfig ).second )
        return true;
    VELQUIN_REPORT( getLogger(), ( Fault{ Rules::IDENTIFIER_TWICE, "name", pDetectorConfig->getName() } ),
                    "failed to add disconnect detector config : " << pDetectorConfig->getName() );
    return false;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

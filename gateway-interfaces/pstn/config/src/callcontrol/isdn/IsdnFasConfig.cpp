#include "callcontrol/isdn/IsdnFasConfig.h"

#include <algorithm>
#include <cstring>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "RuleNames.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnFasConfig );

bool IsdnFasConfig::addApplyToDigitalInterface( TSHandle<DigitalInterfaceConfig> in_hDigitalInterface ) try {
    if ( !VELQUIN_ASSERT( !in_hDigitalInterface.isNull() ) )
        return false;
    if ( !in_hDigitalInterface->hasDChannel() ) {
        VELQUIN_REPORT(
            getLogger(), Fault{ Rules::withoutDChannel( !in_hDigitalInterface->getPhysicalConfig().isNull() ) },
            "failed to apply ISDN configuration to interface " << in_hDigitalInterface->getUniqueId( false )
                                                               << "because the interface does not have a D-Channel." );
        return false;
    }
    VELQUIN_LOG_DEBUG( getLogger(), "adding interface=" << in_hDigitalInterface->getUniqueId( false )
                                                        << " to ISDN config ID=" << getId() );
    m_vecApplyToDigitalInterfaces.push_back( std::move( in_hDigitalInterface ) );
    return true;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool IsdnFasConfig::addApplyToDigitalInterfaceVector(
    const std::vector<TSHandle<DigitalInterfaceConfig>>& in_vecDigitalInterfaces ) {
    return std::all_of( in_vecDigitalInterfaces.begin(), in_vecDigitalInterfaces.end(),
                        [this]( const auto& in_hInterface ) { return addApplyToDigitalInterface( in_hInterface ); } );
}

bool IsdnFasConfig::isAppliedToInterface( const char* in_szUniqueId ) const try {
    return VELQUIN_ASSERT( in_szUniqueId != nullptr ) &&
           std::any_of( m_vecApplyToDigitalInterfaces.begin(), m_vecApplyToDigitalInterfaces.end(),
                        [in_szUniqueId]( const auto& in_hInterface ) {
                            return std::strcmp( in_hInterface->getUniqueId( false ), in_szUniqueId ) == 0;
                        } );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

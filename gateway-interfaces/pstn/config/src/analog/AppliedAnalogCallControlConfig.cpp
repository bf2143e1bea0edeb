#include "analog/AppliedAnalogCallControlConfig.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "hardware/BoardConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AppliedAnalogCallControlConfig );

namespace {

/// The board's number for a log line; 0 for an interface that has no board yet.
unsigned int getBoardId( const AnalogInterfaceConfig& in_interface ) {
    const auto pBoardConfig = in_interface.getBoardConfig();
    return pBoardConfig.isNull() ? 0 : pBoardConfig->getId();
}

} // namespace

bool AppliedAnalogCallControlConfig::addApplyToAnalogInterface(
    TSHandle<AnalogInterfaceConfig> in_hAnalogInterface ) try {
    if ( !VELQUIN_ASSERT( !in_hAnalogInterface.isNull() ) )
        return false;
    VELQUIN_LOG_DEBUG( m_getLogger(), "adding board= " << getBoardId( *in_hAnalogInterface )
                                                       << ", interface= " << in_hAnalogInterface->getId()
                                                       << " To Analgo " << m_szKind << " config ID= " << getId() );
    m_vecInterfaces.push_back( std::move( in_hAnalogInterface ) );
    return true;
}
VELQUIN_CATCH_AND_RETURN( m_getLogger(), false )

bool AppliedAnalogCallControlConfig::addApplyToAnalogInterfaceVector( const Interfaces& in_vecAnalogInterfaces ) {
    return std::all_of( in_vecAnalogInterfaces.begin(), in_vecAnalogInterfaces.end(),
                        [this]( const auto& in_hInterface ) { return addApplyToAnalogInterface( in_hInterface ); } );
}

bool AppliedAnalogCallControlConfig::isAppliedToInterface( const char* in_szInterfaceuniqueId ) const {
    // The text of the assertion must have NULL.
    if ( !VELQUIN_ASSERT( in_szInterfaceuniqueId != NULL ) ) // NOLINT(modernize-use-nullptr)
        return false;
    return std::any_of( m_vecInterfaces.begin(), m_vecInterfaces.end(), [&]( const auto& in_hInterface ) {
        return std::strcmp( in_hInterface->getUniqueId( false ), in_szInterfaceuniqueId ) == 0;
    } );
}

} // namespace Velquin::Pstn

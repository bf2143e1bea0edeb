#include "analog/AppliedAnalogInterfaces.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

#include <velquin/Assertion.h>

#include "hardware/BoardConfig.h"

namespace Velquin::Pstn {

namespace {

/// The board's number; 0 for an interface that has no board yet, which a log line must not stumble over.
unsigned int getBoardId( const AnalogInterfaceConfig& in_interface ) {
    const auto pBoardConfig = in_interface.getBoardConfig();
    return pBoardConfig.isNull() ? 0 : pBoardConfig->getId();
}

} // namespace

bool AppliedAnalogInterfaces::add( TSHandle<AnalogInterfaceConfig> in_hAnalogInterface, const char* in_szKind,
                                   unsigned int in_uConfigId, const Logger& in_logger ) {
    if ( !VELQUIN_ASSERT( !in_hAnalogInterface.isNull() ) )
        return false;
    VELQUIN_LOG_DEBUG( in_logger, "adding board= " << getBoardId( *in_hAnalogInterface )
                                                   << ", interface= " << in_hAnalogInterface->getId() << " To Analgo "
                                                   << in_szKind << " config ID= " << in_uConfigId );
    m_vecInterfaces.push_back( std::move( in_hAnalogInterface ) );
    return true;
}

bool AppliedAnalogInterfaces::addAll( const Interfaces& in_vecAnalogInterfaces, const char* in_szKind,
                                      unsigned int in_uConfigId, const Logger& in_logger ) {
    return std::all_of( in_vecAnalogInterfaces.begin(), in_vecAnalogInterfaces.end(), [&]( const auto& in_hInterface ) {
        return add( in_hInterface, in_szKind, in_uConfigId, in_logger );
    } );
}

bool AppliedAnalogInterfaces::contains( const char* in_szInterfaceuniqueId ) const {
    // The assertion logs its own text, in which NULL stands.
    if ( !VELQUIN_ASSERT( in_szInterfaceuniqueId != NULL ) ) // NOLINT(modernize-use-nullptr)
        return false;
    return std::any_of( m_vecInterfaces.begin(), m_vecInterfaces.end(), [&]( const auto& in_hInterface ) {
        return std::strcmp( in_hInterface->getUniqueId( false ), in_szInterfaceuniqueId ) == 0;
    } );
}

} // namespace Velquin::Pstn

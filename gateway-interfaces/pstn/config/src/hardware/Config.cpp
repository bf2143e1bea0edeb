#include "hardware/Config.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "AppendUnique.h"
#include "RuleNames.h"
#include "Setters.h"
#include "hardware/InterfaceKind.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( Config );

namespace {

/// Takes ownership of the board and adds it unless its identifier is taken. May throw, after an ERROR line.
template <class TBoard>
bool addBoard( std::map<unsigned int, TSHandle<TBoard>>& inout_mapBoards, TBoard* in_pNewBoard, const char* in_szKind,
               const Logger& in_logger ) {
    const unsigned int uId = in_pNewBoard->getId();
    try {
        TSHandle<TBoard> hBoard( in_pNewBoard );
        VELQUIN_LOG_DEBUG( in_logger,
                           "adding new " << in_szKind << " board: " << uId << "<" << hBoard->getDisplayName() << ">" );
        if ( appendUnique( inout_mapBoards, uId, hBoard ) )
            return true;
        VELQUIN_REPORT( in_logger, ( Fault{ Rules::IDENTIFIER_TWICE, "ID", std::to_string( uId ) } ),
                        "failed to add new " << in_szKind << " board: " << uId << "<" << hBoard->getDisplayName()
                                             << ">" );
        return false;
    } catch ( ... ) {
        VELQUIN_REPORT_ERROR( in_logger, "failed to add new " << in_szKind << " board: " << uId );
        throw;
    }
}

template <class TBoard>
TSHandle<TBoard> findBoard( const std::map<unsigned int, TSHandle<TBoard>>& in_mapBoards, unsigned int in_uId,
                            const char* in_szKind, const Logger& in_logger ) {
    VELQUIN_LOG_DEBUG( in_logger, "getting " << in_szKind << " board: " << in_uId );
    const auto it = in_mapBoards.find( in_uId );
    if ( it != in_mapBoards.end() )
        return it->second;
    VELQUIN_REPORT_ERROR( in_logger, "failed to get " << in_szKind << " board: " << in_uId );
    return {};
}

template <class TKind>
TSHandle<typename TKind::Interface> findInterface( const Config& in_config, unsigned int in_uBoardId,
                                                   unsigned int in_uInterfaceId, const Logger& in_logger ) {
    VELQUIN_LOG_DEBUG( in_logger, "getting " << TKind::NAME << " interface board=" << in_uBoardId
                                             << " interface=" << in_uInterfaceId );
    const auto hBoard = TKind::getBoard( in_config, in_uBoardId );
    return hBoard.isNull() ? nullptr : TKind::getInterface( *hBoard, in_uInterfaceId );
}

/// Adds the tone sets of one kind of board.
/// @param in_szTail the end of the message about a board that can't be read
template <class TKind>
bool addToneSets( const Config& in_config, std::set<std::string>& out_setToneSets, const char* in_szTail,
                  const Logger& in_logger ) {
    for ( const auto& [uBoardId, hBoardConfig] : TKind::getBoards( in_config ) ) {
        if ( !VELQUIN_ASSERT( !hBoardConfig.isNull() ) )
            return false;
        typename TKind::Interfaces vecInterfaces;
        if ( !TKind::getInterfaces( *hBoardConfig, vecInterfaces ) ) {
            VELQUIN_REPORT_ERROR( in_logger, "failed to retrieve interfaces configuration for board" << in_szTail );
            return false;
        }
        bool bTirvana = false;
        for ( const auto& hInterfaceConfig : vecInterfaces ) {
            if ( !VELQUIN_ASSERT( !hInterfaceConfig.isNull() ) )
                return false;
            if ( !dynamic_cast<const typename TKind::TirvanaInterface*>( hInterfaceConfig.get() ) )
                continue;
            bTirvana = true;
            const auto& hPhysicalConfig = hInterfaceConfig->getPhysicalConfig();
            if ( !hPhysicalConfig.isNull() && !hPhysicalConfig->getAudioConfig().isNull() )
                out_setToneSets.insert( hPhysicalConfig->getAudioConfig()->getToneSetName() );
        }
        if ( !bTirvana ) {
            VELQUIN_LOG_DEBUG( in_logger,
                               "no Tirvana " << TKind::NAME << " interface to configure for board " << uBoardId );
        }
    }
    return true;
}

} // namespace

bool Config::addProviderConfig( ProviderConfig* in_pNewProviderConfig ) try {
    const TSHandle<ProviderConfig> hProviderConfig( in_pNewProviderConfig );
    if ( !VELQUIN_ASSERT( in_pNewProviderConfig ) )
        return false;
    VELQUIN_LOG_DEBUG( getLogger(), "adding new provider: " << hProviderConfig->getId() );
    if ( m_mapProviders.try_emplace( hProviderConfig->getId(), hProviderConfig ).second )
        return true;
    VELQUIN_REPORT( getLogger(), Fault{ Rules::IDENTIFIER_TWICE },
                    "failed to all new provider: " << hProviderConfig->getId() );
    return false;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool Config::addBoardConfig( BoardConfig* in_pNewBoardConfig ) try {
    if ( !VELQUIN_ASSERT( in_pNewBoardConfig ) )
        return false;
    if ( auto* const pAnalogBoardConfig = dynamic_cast<AnalogBoardConfig*>( in_pNewBoardConfig ) )
        return addAnalogBoardConfig( pAnalogBoardConfig );
    if ( auto* const pDigitalBoardConfig = dynamic_cast<DigitalBoardConfig*>( in_pNewBoardConfig ) )
        return addDigitalBoardConfig( pDigitalBoardConfig );
    const TSHandle<BoardConfig> hBoardConfig( in_pNewBoardConfig );
    VELQUIN_REPORT_ERROR( getLogger(), "failed to add new board, which is neither analog nor digital: "
                                           << hBoardConfig->getId() << "<" << hBoardConfig->getDisplayName() << ">" );
    return false;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool Config::addAnalogBoardConfig( AnalogBoardConfig* in_pNewAnalogBoardConfig ) try {
    return VELQUIN_ASSERT( in_pNewAnalogBoardConfig ) &&
           addBoard( m_mapAnalogBoards, in_pNewAnalogBoardConfig, AnalogKind::NAME, getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool Config::addDigitalBoardConfig( DigitalBoardConfig* in_pNewDigitalBoardConfig ) try {
    return VELQUIN_ASSERT( in_pNewDigitalBoardConfig ) &&
           addBoard( m_mapDigitalBoards, in_pNewDigitalBoardConfig, DigitalKind::NAME, getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

bool Config::setCallControlConfig( CallControlConfig* in_pCallControlConfig ) {
    return setOwned( m_hCallControlConfig, in_pCallControlConfig, getLogger(), "!pCallControlConfig.isNull()" );
}

bool Config::setCallControlConfig( TSHandle<CallControlConfig>& in_hCallControlConfig ) {
    return setNotNull( m_hCallControlConfig, in_hCallControlConfig, "!in_hCallControlConfig.isNull()" );
}

TSHandle<ProviderConfig> Config::getProviderConfig( const char* in_szName ) const try {
    if ( !VELQUIN_ASSERT( in_szName != nullptr ) )
        return {};
    VELQUIN_LOG_DEBUG( getLogger(), "getting provider: " << in_szName );
    const auto it = m_mapProviders.find( in_szName );
    if ( it != m_mapProviders.end() )
        return it->second;
    VELQUIN_REPORT_ERROR( getLogger(), "failed to get provider: " << in_szName );
    return {};
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

TSHandle<AnalogBoardConfig> Config::getAnalogBoardConfig( unsigned int in_uBoardId ) const try {
    return findBoard( m_mapAnalogBoards, in_uBoardId, AnalogKind::NAME, getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

TSHandle<DigitalBoardConfig> Config::getDigitalBoardConfig( unsigned int in_uBoardId ) const try {
    return findBoard( m_mapDigitalBoards, in_uBoardId, DigitalKind::NAME, getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

TSHandle<AnalogInterfaceConfig> Config::getAnalogInterfaceConfig( unsigned int in_uBoardId,
                                                                  unsigned int in_uInterfaceId ) const try {
    return findInterface<AnalogKind>( *this, in_uBoardId, in_uInterfaceId, getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

TSHandle<DigitalInterfaceConfig> Config::getDigitalInterfaceConfig( unsigned int in_uBoardId,
                                                                    unsigned int in_uInterfaceId ) const try {
    return findInterface<DigitalKind>( *this, in_uBoardId, in_uInterfaceId, getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool Config::getToneSets( std::set<std::string>& out_setToneSets ) const try {
    return addToneSets<DigitalKind>( *this, out_setToneSets, "", getLogger() ) &&
           addToneSets<AnalogKind>( *this, out_setToneSets, " ", getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

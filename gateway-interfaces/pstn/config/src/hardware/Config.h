#pragma once

#include <map>
#include <set>
#include <string>
#include <unordered_map>

#include <velquin/TSHandle.h>

#include "../callcontrol/CallControlConfig.h"
#include "AnalogBoardConfig.h"
#include "DigitalBoardConfig.h"
#include "ProviderConfig.h"

namespace Velquin::Pstn {

/// Root of the configuration model: owns providers, boards and call control, and answers lookups. One thread fills it
/// once, when it loads. Afterwards it is read-only; nothing is ever removed. Other threads may keep handles of its
/// children after it is gone.
///
/// Adders take ownership of their argument, even when they refuse it.
class VELQUIN_PSTN_CONFIG_EXPORT Config : public virtual Object {
    PSTN_CONFIG_CLASS( Config );

public:
    using ProviderConfigs = std::unordered_map<std::string, TSHandle<ProviderConfig>>;
    using AnalogBoardConfigs = std::map<unsigned int, TSHandle<AnalogBoardConfig>>;
    using DigitalBoardConfigs = std::map<unsigned int, TSHandle<DigitalBoardConfig>>;

    /// Refuses a provider whose name is taken.
    bool addProviderConfig( ProviderConfig* in_pNewProviderConfig );
    /// Adds an analog or a digital board. Refuses it if its identifier is taken among the boards of its kind.
    bool addBoardConfig( BoardConfig* in_pNewBoardConfig );
    bool addAnalogBoardConfig( AnalogBoardConfig* in_pNewAnalogBoardConfig );
    bool addDigitalBoardConfig( DigitalBoardConfig* in_pNewDigitalBoardConfig );

    /// Replaces the call control. Refuses null, with an assertion.
    bool setCallControlConfig( CallControlConfig* in_pCallControlConfig );
    bool setCallControlConfig( TSHandle<CallControlConfig>& in_hCallControlConfig );
    /// Null until set.
    TSHandle<CallControlConfig> getCallControlConfig() const noexcept { return m_hCallControlConfig; }

    // Lookups. Each yields null, after an ERROR line, when the object is not there.
    TSHandle<ProviderConfig> getProviderConfig( const char* in_szName ) const;
    TSHandle<AnalogBoardConfig> getAnalogBoardConfig( unsigned int in_uBoardId ) const;
    TSHandle<DigitalBoardConfig> getDigitalBoardConfig( unsigned int in_uBoardId ) const;
    TSHandle<AnalogInterfaceConfig> getAnalogInterfaceConfig( unsigned int in_uBoardId,
                                                              unsigned int in_uInterfaceId ) const;
    TSHandle<DigitalInterfaceConfig> getDigitalInterfaceConfig( unsigned int in_uBoardId,
                                                                unsigned int in_uInterfaceId ) const;

    const ProviderConfigs& getProvidersConfig() const noexcept { return m_mapProviders; }
    /// Boards, ascending by identifier.
    const AnalogBoardConfigs& getAnalogBoardsConfig() const noexcept { return m_mapAnalogBoards; }
    const DigitalBoardConfigs& getDigitalBoardsConfig() const noexcept { return m_mapDigitalBoards; }

    /// Adds the names of the tone sets in the physical configurations of the Tirvana interfaces. An interface without
    /// physical configuration adds none.
    bool getToneSets( std::set<std::string>& out_setToneSets ) const;

private:
    ProviderConfigs m_mapProviders;
    AnalogBoardConfigs m_mapAnalogBoards;
    DigitalBoardConfigs m_mapDigitalBoards;
    TSHandle<CallControlConfig> m_hCallControlConfig;
};

} // namespace Velquin::Pstn

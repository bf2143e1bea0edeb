#pragma once

#include <vector>

#include <velquin/TSHandle.h>

#include "AnalogInterfaceConfig.h"
#include "BoardConfig.h"
#include "InterfaceMap.h"

namespace Velquin::Pstn {

/// A card with analog FXS and FXO ports. Owns its interfaces.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogBoardConfig : public BoardConfig {
    PSTN_CONFIG_CLASS( AnalogBoardConfig );

public:
    /// Takes ownership of the interface. Refuses and destroys it if its identifier is already on the board.
    bool addAnalogInterfaceConfig( AnalogInterfaceConfig* in_pNewAnalogInterfaceConfig );
    /// The interface of that identifier; null, with an ERROR line, when there is none.
    TSHandle<AnalogInterfaceConfig> getAnalogInterfaceConfig( unsigned int in_uId ) const;
    /// Fills the vector, which must be empty, with all interfaces, ascending by identifier.
    bool getAnalogInterfacesConfig( std::vector<TSHandle<AnalogInterfaceConfig>>& out_vecAnalogInterfaceConfig ) const;

private:
    InterfaceMap<AnalogInterfaceConfig> m_mapInterfaces;
};

} // namespace Velquin::Pstn

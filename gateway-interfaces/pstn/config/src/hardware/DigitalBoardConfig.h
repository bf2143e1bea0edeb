#pragma once

#include <vector>

#include <velquin/TSHandle.h>

#include "BoardConfig.h"
#include "DigitalInterfaceConfig.h"
#include "InterfaceMap.h"

namespace Velquin::Pstn {

/// A card with digital E1 or T1 spans, real or virtual. Owns its interfaces.
class VELQUIN_PSTN_CONFIG_EXPORT DigitalBoardConfig : public BoardConfig {
    PSTN_CONFIG_CLASS( DigitalBoardConfig );

public:
    /// Takes ownership of the interface. Refuses and destroys it if its identifier is already on the board.
    bool addDigitalInterfaceConfig( DigitalInterfaceConfig* in_pNewDigitalInterfaceConfig );
    /// The interface of that identifier; null, with an ERROR line, when there is none.
    TSHandle<DigitalInterfaceConfig> getDigitalInterfaceConfig( unsigned int in_uId ) const;
    /// Fills the vector, which must be empty, with all interfaces, ascending by identifier.
    bool
    getDigitalInterfacesConfig( std::vector<TSHandle<DigitalInterfaceConfig>>& out_vecDigitalInterfaceConfig ) const;

private:
    InterfaceMap<DigitalInterfaceConfig> m_mapInterfaces;
};

} // namespace Velquin::Pstn

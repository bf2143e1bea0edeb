#pragma once

#include "AnalogInterfaceConfig.h"

namespace Velquin::Pstn {

/// A port of a Tirvana analog card.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaAnalogInterfaceConfig : public AnalogInterfaceConfig {
    PSTN_CONFIG_CLASS( TirvanaAnalogInterfaceConfig );

public:
    /// The driver's number of the port on its card; 0 until set.
    unsigned int getTirpipeInterface() const noexcept { return m_uTirpipeInterface; }
    void setTirpipeInterface( unsigned int in_uTirpipeInterface ) noexcept {
        m_uTirpipeInterface = in_uTirpipeInterface;
    }

private:
    unsigned int m_uTirpipeInterface = 0;
};

} // namespace Velquin::Pstn

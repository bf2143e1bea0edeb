#pragma once

#include "ProviderConfig.h"
#include "TirvanaThreadGroupConfig.h"

namespace Velquin::Pstn {

/// The Tirvana driver family: bit order of its media streams and the threads that serve its channels.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaProviderConfig : public ProviderConfig {
    PSTN_CONFIG_CLASS( TirvanaProviderConfig );

public:
    /// Whether the gateway reverses the bit order of received media; off by default.
    bool isReverseBitsOfRxMediaStreamsEnabled() const noexcept { return m_bReverseBitsOfRxMediaStreams; }
    void setReverseBitsOfRxMediaStreams( bool in_bReverse ) noexcept { m_bReverseBitsOfRxMediaStreams = in_bReverse; }

    /// Whether the gateway reverses the bit order of transmitted media; off by default.
    bool isReverseBitsOfTxMediaStreamsEnabled() const noexcept { return m_bReverseBitsOfTxMediaStreams; }
    void setReverseBitsOfTxMediaStreams( bool in_bReverse ) noexcept { m_bReverseBitsOfTxMediaStreams = in_bReverse; }

    const TirvanaThreadGroupConfig& getDChannelsThreadsConfig() const noexcept { return m_dChannelsThreadsConfig; }
    void setDChannelsThreadsConfig( const TirvanaThreadGroupConfig& in_config ) {
        m_dChannelsThreadsConfig = in_config;
    }

    const TirvanaThreadGroupConfig& getBChannelsThreadsConfig() const noexcept { return m_bChannelsThreadsConfig; }
    void setBChannelsThreadsConfig( const TirvanaThreadGroupConfig& in_config ) {
        m_bChannelsThreadsConfig = in_config;
    }

private:
    bool m_bReverseBitsOfRxMediaStreams = false;
    bool m_bReverseBitsOfTxMediaStreams = false;
    TirvanaThreadGroupConfig m_dChannelsThreadsConfig;
    TirvanaThreadGroupConfig m_bChannelsThreadsConfig;
};

} // namespace Velquin::Pstn

#pragma once

#include "DigitalInterfaceConfig.h"

namespace Velquin::Pstn {

/// A span of a virtual board, linked to the span of another virtual board. It has no tirpipe number.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalVirtualInterfaceConfig : public DigitalInterfaceConfig {
    PSTN_CONFIG_CLASS( TirvanaDigitalVirtualInterfaceConfig );

public:
    // The other end of the link: a virtual board, and the number of a span on it; 0 until set. Nothing checks that
    // board and span exist.
    unsigned int getPeerVirtualBoardId() const noexcept { return m_uPeerVirtualBoardId; }
    void setPeerVirtualBoardId( unsigned int in_uId ) noexcept { m_uPeerVirtualBoardId = in_uId; }
    unsigned int getPeerVirtualInterfaceId() const noexcept { return m_uPeerVirtualInterfaceId; }
    void setPeerVirtualInterfaceId( unsigned int in_uId ) noexcept { m_uPeerVirtualInterfaceId = in_uId; }

private:
    unsigned int m_uPeerVirtualBoardId = 0;
    unsigned int m_uPeerVirtualInterfaceId = 0;
};

} // namespace Velquin::Pstn

#pragma once

#include "DigitalInterfaceConfig.h"

namespace Velquin::Pstn {

/// A span of a virtual board, linked to the span of another virtual board. It has no tirpipe number.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaDigitalVirtualInterfaceConfig : public DigitalInterfaceConfig {
    PSTN_CONFIG_CLASS( TirvanaDigitalVirtualInterfaceConfig );

private:
    // The other end of the link is set by the reader and asked by nobody else.
    friend class TirvanaDigitalVirtualInterfaceConfigXmlSerializer;

    unsigned int m_uPeerVirtualBoardId = 0;
    unsigned int m_uPeerVirtualInterfaceId = 0;
};

} // namespace Velquin::Pstn

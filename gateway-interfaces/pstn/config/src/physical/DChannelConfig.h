#pragma once

#include <string>

#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// The D-channel of a span, and the capture of its frames. A D-channel carries ISDN signalling.
class VELQUIN_PSTN_CONFIG_EXPORT DChannelConfig : public virtual Object {
    PSTN_CONFIG_CLASS( DChannelConfig );

public:
    DChannelConfig();

    /// The timeslot of the D-channel in the span: 16 on most E1 spans, 24 on most T1 spans; 0 until set.
    unsigned int getDChannelIndex() const noexcept { return m_uDChannelIndex; }
    void setDChannelIndex( unsigned int in_uDChannelIndex ) noexcept { m_uDChannelIndex = in_uDChannelIndex; }

    /// The largest frame, in bytes; 0 until set.
    unsigned int getMtuSize() const noexcept { return m_uMtuSize; }
    void setMtuSize( unsigned int in_uMtuSize ) noexcept { m_uMtuSize = in_uMtuSize; }

    /// The folder of the capture files; empty until set.
    const char* getPcapPathName() const noexcept { return m_strPcapFilesFolder.c_str(); }
    /// Refuses null, with an assertion.
    bool setPcapFilesFolder( const char* in_szPcapFilesFolder );

    /// Whether the gateway captures frames into pcap files; off until set.
    bool isPcapRecorderEnabled() const noexcept { return m_bPcapRecorderEnabled; }
    void enablePcapRecorder( bool in_bEnable ) noexcept { m_bPcapRecorderEnabled = in_bEnable; }

private:
    unsigned int m_uDChannelIndex = 0;
    unsigned int m_uMtuSize = 0;
    std::string m_strPcapFilesFolder;
    bool m_bPcapRecorderEnabled = false;
};

} // namespace Velquin::Pstn

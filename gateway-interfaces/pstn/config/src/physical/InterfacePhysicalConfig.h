#pragma once

#include <string>

#include <velquin/Object.h>
#include <velquin/TSHandle.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"
#include "audio/AudioConfig.h"

namespace Velquin::Pstn {

/// How the lines of one or more interfaces are driven. One configuration may apply to many interfaces: each holds a
/// handle to it.
class VELQUIN_PSTN_CONFIG_EXPORT InterfacePhysicalConfig : public virtual Object {
    PSTN_CONFIG_CLASS( InterfacePhysicalConfig );

public:
    /// 0 until set.
    unsigned int getId() const noexcept { return m_uId; }
    void setId( unsigned int in_uId ) noexcept { m_uId = in_uId; }

    /// Any text.
    const char* getDisplayName() const noexcept { return m_strDisplayName.c_str(); }
    bool setDisplayName( const char* in_szDisplayName );

    /// Null until set.
    const TSHandle<AudioConfig>& getAudioConfig() const noexcept { return m_hAudioConfig; }
    /// Takes ownership. Refuses null, with an assertion.
    bool setAudioConfig( AudioConfig* in_pAudioConfig );

private:
    unsigned int m_uId = 0;
    std::string m_strDisplayName;
    TSHandle<AudioConfig> m_hAudioConfig;
};

} // namespace Velquin::Pstn

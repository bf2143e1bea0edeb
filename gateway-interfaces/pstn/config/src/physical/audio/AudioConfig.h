#pragma once

#include <string>

#include <velquin/Media/Format.h>
#include <velquin/Object.h>
#include <velquin/TSHandle.h>

#include "../../PstnConfigClass.h"
#include "../../PstnConfigExport.h"
#include "../../reading/KeywordTable.h"
#include "AcousticEchoCancellationConfig.h"
#include "BackgroundNoiseAttenuationConfig.h"
#include "DtmfRemovalConfig.h"
#include "EchoCancellationConfig.h"
#include "LevelControlConfig.h"

namespace Velquin::Pstn {

/// How the voice of interfaces is coded and processed. A voice-processing block is null until set. The setters of the
/// blocks take ownership, and refuse null, with an assertion.
class VELQUIN_PSTN_CONFIG_EXPORT AudioConfig : public virtual Object {
    PSTN_CONFIG_CLASS( AudioConfig );

public:
    /// The PCM law of the voice.
    const Media::Format& getMediaFormat() const noexcept { return m_mediaFormat; }
    void setMediaFormat( const Media::Format& in_mediaFormat ) noexcept { m_mediaFormat = in_mediaFormat; }

    /// Names the tones that the gateway plays and detects; empty until set.
    const char* getToneSetName() const noexcept { return m_strToneSetName.c_str(); }
    /// Refuses null, with an assertion.
    bool setToneSetName( const char* in_szToneSetName );

    const TSHandle<EchoCancellationConfig>& getEchoCancellationConfig() const noexcept { return m_hEchoCancellation; }
    bool setEchoCancellationConfig( EchoCancellationConfig* in_pConfig );

    const TSHandle<AcousticEchoCancellationConfig>& getAcousticEchoCancellationConfig() const noexcept {
        return m_hAcousticEchoCancellation;
    }
    bool setAcousticEchoCancellationConfig( AcousticEchoCancellationConfig* in_pConfig );

    const TSHandle<LevelControlConfig>& getLevelControlConfig() const noexcept { return m_hLevelControl; }
    bool setLevelControlConfig( LevelControlConfig* in_pConfig );

    const TSHandle<BackgroundNoiseAttenuationConfig>& getBackgroundNoiseAttenuationConfig() const noexcept {
        return m_hBackgroundNoiseAttenuation;
    }
    bool setBackgroundNoiseAttenuationConfig( BackgroundNoiseAttenuationConfig* in_pConfig );

    const TSHandle<DtmfRemovalConfig>& getDtmfRemovalConfig() const noexcept { return m_hDtmfRemoval; }
    bool setDtmfRemovalConfig( DtmfRemovalConfig* in_pConfig );

private:
    Media::Format m_mediaFormat;
    std::string m_strToneSetName;
    TSHandle<EchoCancellationConfig> m_hEchoCancellation;
    TSHandle<AcousticEchoCancellationConfig> m_hAcousticEchoCancellation;
    TSHandle<LevelControlConfig> m_hLevelControl;
    TSHandle<BackgroundNoiseAttenuationConfig> m_hBackgroundNoiseAttenuation;
    TSHandle<DtmfRemovalConfig> m_hDtmfRemoval;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto PCM_LAW = keywordTable<Media::Format::Type>( {
    { "PCMU", Media::Format::PCMU },
    { "PCMA", Media::Format::PCMA },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

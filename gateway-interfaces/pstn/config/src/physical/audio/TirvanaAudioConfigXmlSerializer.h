#pragma once

#include "AudioConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads the `audio` element of a Tirvana physical configuration.
class VELQUIN_PSTN_CONFIG_EXPORT TirvanaAudioConfigXmlSerializer : public AudioConfigXmlSerializer {
    PSTN_CONFIG_CLASS( TirvanaAudioConfigXmlSerializer );

public:
    /// The result is a TirvanaAudioConfig.
    AudioConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) override;
    bool write( xmlNode* const in_pParent, const AudioConfig& in_config ) override;
    AudioConfig* newAudioConfig() override;
};

} // namespace Velquin::Pstn

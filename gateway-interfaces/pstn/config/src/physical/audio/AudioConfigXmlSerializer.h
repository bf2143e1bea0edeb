#pragma once

#include <velquin/Object.h>

#include "../../reading/XmlNodeFwd.h"
#include "AudioConfig.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Reads the `audio` element of a physical configuration.
class VELQUIN_PSTN_CONFIG_EXPORT AudioConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( AudioConfigXmlSerializer );

public:
    /// A new audio configuration, which the caller owns; null after an ERROR line.
    virtual AudioConfig* read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const AudioConfig& in_config );
    /// Creates the empty object of the concrete class, which the caller owns.
    virtual AudioConfig* newAudioConfig();
};

} // namespace Velquin::Pstn

#pragma once

#include <velquin/Object.h>

#include "../reading/XmlNodeFwd.h"
#include "InterfacePhysicalConfig.h"

namespace Velquin::Pstn {

class AudioConfigXmlSerializer;
class XmlConfig;

/// Reads what all physical configurations have in common. Base of their serializers.
class VELQUIN_PSTN_CONFIG_EXPORT InterfacePhysicalConfigXmlSerializer : public virtual Object {
    PSTN_CONFIG_CLASS( InterfacePhysicalConfigXmlSerializer );

public:
    /// A new physical configuration; null after an ERROR line. The concrete serializers apply it to the interfaces that
    /// the element names. After a fault, the interfaces before it keep the configuration.
    virtual TSHandle<InterfacePhysicalConfig> read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig );
    /// Not implemented: false, with an ERROR line.
    virtual bool write( xmlNode* const in_pParent, const InterfacePhysicalConfig& in_config );
    /// Creates the empty object of the concrete class, which the caller owns; null in this class.
    virtual InterfacePhysicalConfig* newInterfacePhysicalConfig();
    /// Creates the serializer of the `audio` element, which the caller owns.
    virtual AudioConfigXmlSerializer* newAudioConfigXmlSerializer();
};

} // namespace Velquin::Pstn

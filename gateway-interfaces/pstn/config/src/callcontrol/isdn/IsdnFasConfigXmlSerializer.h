#pragma once

#include "IsdnCommonConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads a `fasConfig` element and adds its B-channel ranges to channel groups. After a fault, the ranges before it
/// stay there.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnFasConfigXmlSerializer : public IsdnCommonConfigXmlSerializer {
    PSTN_CONFIG_CLASS( IsdnFasConfigXmlSerializer );

public:
    IsdnCommonConfig* read( TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* const in_pElement,
                            XmlConfig& in_xmlConfig ) override;
    bool write( xmlNode* const in_pParent, const IsdnCommonConfig& in_config ) override;
    IsdnCommonConfig* newIsdnCommonConfig() override;
};

} // namespace Velquin::Pstn

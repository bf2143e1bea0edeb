#pragma once

#include "IsdnCommonConfigXmlSerializer.h"

namespace Velquin::Pstn {

/// Reads an `nfasGroup` element and puts the B-channel ranges of its members into channel groups. Those that came
/// before a fault stay there.
class VELQUIN_PSTN_CONFIG_EXPORT IsdnNFasConfigXmlSerializer : public IsdnCommonConfigXmlSerializer {
    PSTN_CONFIG_CLASS( IsdnNFasConfigXmlSerializer );

public:
    IsdnCommonConfig* read( TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* const in_pElement,
                            XmlConfig& in_xmlConfig ) override;
    bool write( xmlNode* const in_pParent, const IsdnCommonConfig& in_config ) override;
    IsdnCommonConfig* newIsdnCommonConfig() override;
};

} // namespace Velquin::Pstn

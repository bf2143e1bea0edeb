#pragma once

#include <velquin/LimitedObjPtr.h>

#include "AnalogCallControlCommonConfigXmlSerializer.h"
#include "AnalogFxoConfig.h"

namespace Velquin::Pstn {

class Config;

/// Reads an `analogFxoConfig` element.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogFxoConfigXmlSerializer : public AnalogCallControlCommonConfigXmlSerializer {
    PSTN_CONFIG_CLASS( AnalogFxoConfigXmlSerializer );

public:
    /// Reads one entry of `applyTo`.
    class VELQUIN_PSTN_CONFIG_EXPORT InterfaceRefXmlSerializer : public virtual Object {
        PSTN_CONFIG_CLASS( InterfaceRefXmlSerializer );

    public:
        /// Applies the configuration to the interfaces that the entry names, and adds each of them as a channel to the
        /// group that the entry names. False after an ERROR line; the interfaces before the fault stay. The group's
        /// ranges refer to the configuration, but don't keep it alive.
        virtual bool read( const LimitedObjPtr<AnalogFxoConfig>& in_pFxoConfig,
                           TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* const in_pElement,
                           const Config& in_config );
    };

    AnalogCallControlCommonConfig* read( TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* const in_pElement,
                                         XmlConfig& in_xmlConfig ) override;
    bool write( xmlNode* const in_pParent, const AnalogCallControlCommonConfig& in_config ) override;
    AnalogCallControlCommonConfig* newAnalogCallControlCommonConfig() override;
};

} // namespace Velquin::Pstn

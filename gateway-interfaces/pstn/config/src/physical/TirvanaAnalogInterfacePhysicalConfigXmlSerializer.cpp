#include "physical/TirvanaAnalogInterfacePhysicalConfigXmlSerializer.h"

#include <new>

#include <velquin/Assertion.h>
#include <velquin/LimitedObjPtr.h>

#include "physical/PhysicalWording.h"
#include "physical/TirvanaAnalogInterfacePhysicalConfig.h"
#include "physical/audio/TirvanaAudioConfigXmlSerializer.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaAnalogInterfacePhysicalConfigXmlSerializer );

namespace {

using Config = TirvanaAnalogInterfacePhysicalConfig;

constexpr auto CLOCKING = hinted( Keywords::ANALOG_CLOCKING, "Valid values are INTERNAL and EXTERNAL" );
constexpr NumberRule REAL{ NumberPolicy::LEADING, "The value must be a real number." };
constexpr NumberRule POSITIVE{ NumberPolicy::LEADING, "The value must be a positive integer number." };

} // namespace

bool TirvanaAnalogInterfacePhysicalConfigXmlSerializer::readAnalog( xmlNode* in_pAnalog,
                                                                    AnalogInterfacePhysicalConfig& out_config ) {
    if ( !AnalogInterfacePhysicalConfigXmlSerializer::readAnalog( in_pAnalog, out_config ) )
        return false;
    const LimitedObjPtr<TirvanaAnalogInterfacePhysicalConfig> pTirvanaConfig(
        dynamic_cast<TirvanaAnalogInterfacePhysicalConfig*>( &out_config ) );
    if ( !VELQUIN_ASSERT( !pTirvanaConfig.isNull() ) )
        return false;

    const ElementReader reader( in_pAnalog, getLogger(), PHYSICAL_SETTING_WORDING );
    Config& config = *pTirvanaConfig;
    return reader.accept( "clocking", CLOCKING, config, &Config::setClocking ) &&
           reader.accept( "fxoRxGainIndB", REAL, config, &Config::setFxoRxGain ) &&
           reader.accept( "fxoTxGainIndB", REAL, config, &Config::setFxoTxGain ) &&
           reader.accept( "fxsRxGainIndB", REAL, config, &Config::setFxsRxGain ) &&
           reader.accept( "fxsTxGainIndB", REAL, config, &Config::setFxsTxGain ) &&
           reader.accept( "fxoBatteryDebounceInMs", POSITIVE, config, &Config::setFxoBatteryDebounce ) &&
           reader.accept( "fxoBatteryThresholdInVolts", POSITIVE, config, &Config::setFxoBatteryThreshold );
}

bool TirvanaAnalogInterfacePhysicalConfigXmlSerializer::write( xmlNode* const, const InterfacePhysicalConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaAnalogInterfacePhysicalConfigXmlSerializer::write" );
}

InterfacePhysicalConfig* TirvanaAnalogInterfacePhysicalConfigXmlSerializer::newInterfacePhysicalConfig() {
    return new ( std::nothrow ) TirvanaAnalogInterfacePhysicalConfig();
}

AudioConfigXmlSerializer* TirvanaAnalogInterfacePhysicalConfigXmlSerializer::newAudioConfigXmlSerializer() {
    return new ( std::nothrow ) TirvanaAudioConfigXmlSerializer();
}

} // namespace Velquin::Pstn

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

constexpr NumberRule REAL{ NumberPolicy::LEADING, "The value must be a real number." };
constexpr NumberRule POSITIVE{ NumberPolicy::LEADING, "The value must be a positive integer number." };

template <class T>
struct OptionalNumber {
    const char* szAttribute;
    void ( TirvanaAnalogInterfacePhysicalConfig::*set )( T ) noexcept;
};

constexpr OptionalNumber<double> GAINS[] = {
    { "fxoRxGainIndB", &TirvanaAnalogInterfacePhysicalConfig::setFxoRxGain },
    { "fxoTxGainIndB", &TirvanaAnalogInterfacePhysicalConfig::setFxoTxGain },
    { "fxsRxGainIndB", &TirvanaAnalogInterfacePhysicalConfig::setFxsRxGain },
    { "fxsTxGainIndB", &TirvanaAnalogInterfacePhysicalConfig::setFxsTxGain },
};
constexpr OptionalNumber<unsigned int> BATTERY[] = {
    { "fxoBatteryDebounceInMs", &TirvanaAnalogInterfacePhysicalConfig::setFxoBatteryDebounce },
    { "fxoBatteryThresholdInVolts", &TirvanaAnalogInterfacePhysicalConfig::setFxoBatteryThreshold },
};

/// Reads the numbers that are there, in the order of the table; the others keep their defaults.
template <class T, std::size_t N>
bool readNumbers( const ElementReader& in_reader, const OptionalNumber<T> ( &in_aNumbers )[N],
                  const NumberRule& in_rule, TirvanaAnalogInterfacePhysicalConfig& out_config ) {
    for ( const auto& [szAttribute, set] : in_aNumbers ) {
        T number = 0;
        const ReadResult eResult = in_reader.findNumber( szAttribute, in_rule, number );
        if ( eResult == ReadResult::WRONG )
            return false;
        if ( eResult == ReadResult::READ )
            ( out_config.*set )( number );
    }
    return true;
}

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
    auto eClocking = pTirvanaConfig->getClocking();
    if ( reader.findKeyword( "clocking", Keywords::ANALOG_CLOCKING, eClocking,
                             "Valid values are INTERNAL and EXTERNAL" ) == ReadResult::WRONG )
        return false;
    pTirvanaConfig->setClocking( eClocking );
    return readNumbers( reader, GAINS, REAL, *pTirvanaConfig ) &&
           readNumbers( reader, BATTERY, POSITIVE, *pTirvanaConfig );
}

bool TirvanaAnalogInterfacePhysicalConfigXmlSerializer::write( xmlNode* const, const InterfacePhysicalConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaAnalogInterfacePhysicalConfigXmlSerializer::write" );
}

InterfacePhysicalConfig* TirvanaAnalogInterfacePhysicalConfigXmlSerializer::newInterfacePhysicalConfig() {
    return new ( std::nothrow ) TirvanaAnalogInterfacePhysicalConfig();
}

AudioConfigXmlSerializer* TirvanaAnalogInterfacePhysicalConfigXmlSerializer::newAudioConfigXmlSerializer() {
    return new TirvanaAudioConfigXmlSerializer();
}

} // namespace Velquin::Pstn

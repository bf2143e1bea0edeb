#include "callcontrol/isdn/IsdnCommonConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "callcontrol/CallControlConfig.h"
#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnCommonConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for isdn config  ", "] for isdn config  " };
constexpr NumberRule DELAY{ NumberPolicy::WHOLE, "The value must be an integer number." };

bool readTonesIndicator( const ElementReader& in_reader, IsdnCommonConfig& out_config ) {
    AttributeText text;
    if ( !in_reader.findText( "inbandProgressTonesIndicator", text ) ) {
        VELQUIN_LOG_DEBUG( in_reader.getLogger(), "m_eInbandProgressTonesIndicator = PROGRESS (DEFAULT)" );
        return true;
    }
    const bool bKnown = Keywords::TONES_INDICATOR.find( text.view() ) != nullptr;
    VELQUIN_LOG_DEBUG( in_reader.getLogger(),
                       "m_eInbandProgressTonesIndicator = " << ( bKnown ? text.c_str() : "ERROR!" ) );
    return in_reader.require( "inbandProgressTonesIndicator", Keywords::TONES_INDICATOR, out_config,
                              &IsdnCommonConfig::setInbandProgressTonesIndicator );
}

bool readCallerName( const ElementReader& in_reader, IsdnCommonConfig& out_config ) {
    if ( !in_reader.accept( "callerNameLocation", Keywords::CALLER_NAME_LOCATION, out_config,
                            &IsdnCommonConfig::setCallerNameLocation ) )
        return false;
    if ( out_config.getCallerNameLocation() == IsdnCommonConfig::CallerNameLocationType::DISABLED )
        return true;
    if ( !in_reader.has( "waitFacilityDelayMs" ) ) {
        in_reader.reportInvalid( "waitFacilityDelayMs", "" );
        return AttributeReader::passOver();
    }
    return in_reader.require( "waitFacilityDelayMs", DELAY, out_config, &IsdnCommonConfig::setFacilityDelayMs );
}

} // namespace

IsdnCommonConfig* IsdnCommonConfigXmlSerializer::read( TSHandle<CallControlConfig>&, xmlNode* const in_pElement,
                                                       XmlConfig& ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    UniqueObjPtr<IsdnCommonConfig> pIsdnCommonConfig( newIsdnCommonConfig() );
    if ( !VELQUIN_ASSERT( !pIsdnCommonConfig.isNull() ) )
        return nullptr;

    using Config = IsdnCommonConfig;
    Config& config = *pIsdnCommonConfig;
    const bool bRead =
        reader.requireKey( "ID", WHOLE_DECIMAL, config, &Config::setId ) &&
        reader.require( "termination", Keywords::TERMINATION, config, &Config::setTermination ) &&
        reader.require( "switchVariant", Keywords::SWITCH_VARIANT, config, &Config::setSwitchVariant ) &&
        reader.require( "BChannelNegotiation", Keywords::B_CHANNEL_NEGOTIATION, config,
                        &Config::setBChannelNegociation ) &&
        reader.accept( "initiateRestartProcedure", Keywords::YES_NO, config, &Config::setInitiateRestartProcedure ) &&
        reader.accept( "inbandProgressTonesGeneration", Keywords::TONES_GENERATION, config,
                       &Config::setInbandProgressTonesGeneration ) &&
        readTonesIndicator( reader, config ) && readCallerName( reader, config );
    return bRead ? pIsdnCommonConfig.release() : nullptr;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool IsdnCommonConfigXmlSerializer::write( xmlNode* const, const IsdnCommonConfig& ) {
    return reportNotImplemented( getLogger(), "IsdnCommonConfigXmlSerializer::write" );
}

IsdnCommonConfig* IsdnCommonConfigXmlSerializer::newIsdnCommonConfig() {
    return nullptr;
}

} // namespace Velquin::Pstn

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

bool readTonesIndicator( const ElementReader& in_reader, IsdnCommonConfig& out_config, const Logger& in_logger ) {
    AttributeText text;
    if ( in_reader.findText( "inbandProgressTonesIndicator", text ) == ReadResult::ABSENT ) {
        out_config.setInbandProgressTonesIndicator( IsdnCommonConfig::InbandProgressTonesIndicatorType::PROGRESS );
        VELQUIN_LOG_DEBUG( in_logger, "m_eInbandProgressTonesIndicator = PROGRESS (DEFAULT)" );
        return true;
    }
    const auto* const pIndicator = Keywords::TONES_INDICATOR.find( text.view() );
    VELQUIN_LOG_DEBUG( in_logger, "m_eInbandProgressTonesIndicator = " << ( pIndicator ? text.c_str() : "ERROR!" ) );
    if ( !pIndicator ) {
        in_reader.reportInvalid( "inbandProgressTonesIndicator", text.view() );
        return false;
    }
    out_config.setInbandProgressTonesIndicator( *pIndicator );
    return true;
}

bool readCallerName( const ElementReader& in_reader, IsdnCommonConfig& out_config ) {
    auto eLocation = IsdnCommonConfig::CallerNameLocationType::DISABLED;
    if ( in_reader.findKeyword( "callerNameLocation", Keywords::CALLER_NAME_LOCATION, eLocation ) == ReadResult::WRONG )
        return false;
    out_config.setCallerNameLocation( eLocation );

    unsigned int uFacilityDelayMs = 0;
    if ( eLocation != IsdnCommonConfig::CallerNameLocationType::DISABLED ) {
        const ReadResult eResult = in_reader.findNumber( "waitFacilityDelayMs", DELAY, uFacilityDelayMs );
        if ( eResult == ReadResult::ABSENT )
            in_reader.reportInvalid( "waitFacilityDelayMs", "" );
        if ( eResult != ReadResult::READ )
            return false;
    }
    out_config.setFacilityDelayMs( uFacilityDelayMs );
    return true;
}

} // namespace

IsdnCommonConfig* IsdnCommonConfigXmlSerializer::read( TSHandle<CallControlConfig>&, xmlNode* const in_pElement,
                                                       XmlConfig& ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    UniqueObjPtr<IsdnCommonConfig> pIsdnCommonConfig( newIsdnCommonConfig() );
    if ( !VELQUIN_ASSERT( !pIsdnCommonConfig.isNull() ) )
        return nullptr;

    unsigned int uId = 0;
    if ( !reader.requireNumber( "ID", WHOLE_DECIMAL, uId ) )
        return nullptr;
    pIsdnCommonConfig->setId( uId );

    auto eTermination = pIsdnCommonConfig->getTermination();
    if ( !reader.requireKeyword( "termination", Keywords::TERMINATION, eTermination ) )
        return nullptr;
    pIsdnCommonConfig->setTermination( eTermination );

    auto eSwitchVariant = pIsdnCommonConfig->getSwitchVariant();
    if ( !reader.requireKeyword( "switchVariant", Keywords::SWITCH_VARIANT, eSwitchVariant ) )
        return nullptr;
    pIsdnCommonConfig->setSwitchVariant( eSwitchVariant );

    auto eNegociation = pIsdnCommonConfig->getBChannelNegociation();
    if ( !reader.requireKeyword( "BChannelNegotiation", Keywords::B_CHANNEL_NEGOTIATION, eNegociation ) )
        return nullptr;
    pIsdnCommonConfig->setBChannelNegociation( eNegociation );

    bool bRestart = true;
    if ( reader.findKeyword( "initiateRestartProcedure", Keywords::YES_NO, bRestart ) == ReadResult::WRONG )
        return nullptr;
    pIsdnCommonConfig->setInitiateRestartProcedure( bRestart );

    auto eGeneration = IsdnCommonConfig::InbandProgressTonesGenerationType::AS_NEEDED;
    if ( reader.findKeyword( "inbandProgressTonesGeneration", Keywords::TONES_GENERATION, eGeneration ) ==
         ReadResult::WRONG )
        return nullptr;
    pIsdnCommonConfig->setInbandProgressTonesGeneration( eGeneration );

    if ( !readTonesIndicator( reader, *pIsdnCommonConfig, getLogger() ) ||
         !readCallerName( reader, *pIsdnCommonConfig ) )
        return nullptr;
    return pIsdnCommonConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool IsdnCommonConfigXmlSerializer::write( xmlNode* const, const IsdnCommonConfig& ) {
    return reportNotImplemented( getLogger(), "IsdnCommonConfigXmlSerializer::write" );
}

IsdnCommonConfig* IsdnCommonConfigXmlSerializer::newIsdnCommonConfig() {
    return nullptr;
}

} // namespace Velquin::Pstn

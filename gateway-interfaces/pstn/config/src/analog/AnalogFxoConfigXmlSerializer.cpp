#include "analog/AnalogFxoConfigXmlSerializer.h"

#include <new>
#include <string>
#include <string_view>
#include <utility>

#include <velquin/UniqueObjPtr.h>

#include "analog/AnalogDisconnectSupervisionConfigXmlSerializer.h"
#include "analog/AnalogInterfaceRefReader.h"
#include "analog/AnalogWording.h"
#include "loading/XmlConfig.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogFxoConfigXmlSerializer );
PSTN_CONFIG_CLASS_IMPL( AnalogFxoConfigXmlSerializer::InterfaceRefXmlSerializer );

namespace {

using InboundConfig = AnalogFxoConfig::InboundCallHandlingConfig;
using OutboundConfig = AnalogFxoConfig::OutboundCallHandlingConfig;

constexpr const char* SPECIAL_CHARACTER = "InternationalDialingSpecialCharacter";
constexpr const char* SPECIAL_CHARACTER_SUBSTITUTE = "InternationalDialingSpecialCharacterSubstitute";
constexpr char DEFAULT_SPECIAL_CHARACTER = '+';
constexpr const char* DEFAULT_SUBSTITUTE = "011";
constexpr std::string_view DIGITS = "0123456789";

struct FxoFamily {
    using AnalogConfig = AnalogFxoConfig;

    static constexpr const char* NAME = "FXO";
    static constexpr const char* RANGE_FAILURE = "failed to set Analog Fxo for BChannelRange";
    static constexpr const ReaderWording& WORDING = FXO_WORDING;

    static bool setConfig( BChannelRangeConfig& out_range, const AnalogFxoConfig& in_fxoConfig ) {
        const LimitedObjPtr<const AnalogFxoConfig> pFxoConfig( &in_fxoConfig );
        return out_range.setFxoConfig( pFxoConfig );
    }
};

bool readNotification( xmlNode* in_pElement, const Logger& in_logger, InboundConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    auto eCondition = out_config.getNotifyCondition();
    if ( !reader.requireKeyword( "condition", Keywords::FXO_NOTIFY_CONDITION, eCondition ) )
        return false;
    out_config.setNotifyCondition( eCondition );

    if ( eCondition == InboundConfig::NotifyCondition::AFTER_N_RING ) {
        unsigned int uRings = 0;
        if ( !reader.requireNumber( "numberOfRings", POSITIVE_INTERGER, uRings ) )
            return false;
        out_config.setNumberOfRings( uRings );
    }

    unsigned int uDelayMs = 0;
    if ( !reader.requireNumber( "delayInMs", POSITIVE_INTERGER, uDelayMs ) )
        return false;
    out_config.setNotifyDelayMs( uDelayMs );
    return true;
}

bool readInbound( xmlNode* in_pElement, const Logger& in_logger, InboundConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    xmlNode* const pNotify = reader.requireChild( "notifyOutboundSide" );
    if ( !pNotify || !readNotification( pNotify, in_logger, out_config ) )
        return false;

    xmlNode* const pConnect = reader.requireChild( "connect" );
    auto eCondition = out_config.getConnectCondition();
    if ( !pConnect || !ElementReader( pConnect, in_logger, FXO_WORDING )
                           .requireKeyword( "condition", Keywords::FXO_INBOUND_CONNECT_CONDITION, eCondition ) )
        return false;
    out_config.setConnectCondition( eCondition );

    xmlNode* const pCallerId = reader.requireChild( "callerID" );
    auto eCallerIdType = out_config.getCallerIdType();
    if ( !pCallerId || !ElementReader( pCallerId, in_logger, FXO_WORDING )
                            .requireKeyword( "type", Keywords::FXO_CALLER_ID_TYPE, eCallerIdType ) )
        return false;
    out_config.setCallerIdType( eCallerIdType );
    return true;
}

/// The character that marks an international number: one that can't be a digit of the number.
char readSpecialCharacter( const AttributeReader& in_reader ) {
    AttributeText text;
    static_cast<void>( in_reader.findText( SPECIAL_CHARACTER, text ) );
    const std::string_view strText = text.view();
    const bool bUsable = strText.size() == 1 && DIGITS.find( strText.front() ) == std::string_view::npos;
    return bUsable ? strText.front() : DEFAULT_SPECIAL_CHARACTER;
}

/// The digits that stand for that character; text that isn't digits is reported and replaced.
std::string readSubstitute( const AttributeReader& in_reader, const Logger& in_logger ) {
    AttributeText text;
    if ( in_reader.findText( SPECIAL_CHARACTER_SUBSTITUTE, text ) == ReadResult::ABSENT )
        return DEFAULT_SUBSTITUTE;
    if ( text.view().find_first_not_of( DIGITS ) == std::string_view::npos )
        return text.c_str();
    Finding finding;
    finding.eKind = Finding::Kind::INVALID_VALUE;
    finding.nLevel = Logger::WARNING_LEVEL;
    finding.strAttribute = SPECIAL_CHARACTER_SUBSTITUTE;
    finding.strValue = text.view();
    finding.strHint = std::string( "It must contain only digits; " ).append( DEFAULT_SUBSTITUTE ).append( " is used." );
    finding.strText = std::string( "Outbound Call Handling attribute " )
                          .append( SPECIAL_CHARACTER_SUBSTITUTE )
                          .append( " of element Dialing must contain only digits. setting the value of this parameter "
                                   "to 011 since the entered value " )
                          .append( text.view() )
                          .append( " is not valid." );
    reportFinding( in_logger, std::move( finding ), __FILE__, __LINE__ );
    return DEFAULT_SUBSTITUTE;
}

bool readDialing( xmlNode* in_pElement, const Logger& in_logger, OutboundConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    bool bActive = false;
    bool bWaitForDialTone = false;
    if ( !reader.requireKeyword( "active", Keywords::YES_NO, bActive ) ||
         !reader.requireKeyword( "waitForDialTone", Keywords::YES_NO, bWaitForDialTone ) )
        return false;
    out_config.setDialingActive( bActive );
    out_config.enableWaitForDialTone( bWaitForDialTone );

    out_config.setInternationalDialingSpecialCharacter( readSpecialCharacter( reader ) );
    const std::string strSubstitute = readSubstitute( reader, in_logger );
    if ( !out_config.setInternationalDialingSpecialCharacterSubstitute( strSubstitute.c_str() ) )
        return false;

    unsigned int uPreDialDelayMs = 0;
    unsigned int uInterDigitDelayMs = 0;
    unsigned int uDigitDurationMs = 0;
    if ( !reader.requireNumber( "preDialDelayInMs", POSITIVE_INTERGER, uPreDialDelayMs ) ||
         !reader.requireNumber( "interDigitDelayInMs", POSITIVE_INTERGER, uInterDigitDelayMs ) ||
         !reader.requireNumber( "DTMFDigitDurationInMs", POSITIVE_INTERGER, uDigitDurationMs ) )
        return false;
    out_config.setPreDialDelayMs( uPreDialDelayMs );
    out_config.setInterDigitDelayMs( uInterDigitDelayMs );
    out_config.setDTMFDigitDurationMs( uDigitDurationMs );
    return true;
}

/// Reads what on the line says that the call is answered.
bool readOutboundSide( xmlNode* in_pElement, const Logger& in_logger, OutboundConfig& out_config ) {
    using Supervision = OutboundConfig::ConnectSupervision;
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    AttributeText condition;
    if ( !reader.requireText( "condition", condition ) )
        return false;
    const Supervision* const pSupervision = Keywords::FXO_CONNECT_SUPERVISION.find( condition.view() );
    if ( !pSupervision || *pSupervision != Supervision::AFTER_DIALING_DESTINATION_NUMBER ) {
        // Of an unknown condition without a timeout, the timeout is what is reported.
        unsigned int uTimeoutMs = 0;
        if ( !reader.requireNumber( "disconnectTimeoutMs", POSITIVE_INTERGER, uTimeoutMs ) )
            return false;
        out_config.setDisconnectTimeoutMs( uTimeoutMs );
    }
    if ( !pSupervision ) {
        reader.reportInvalid( "condition", condition.view() );
        return false;
    }
    out_config.setOutboundSideConnectSupervision( *pSupervision );

    if ( *pSupervision == Supervision::ON_REMOTE_RING_STOPPED ) {
        unsigned int uTimeoutMs = 0;
        if ( !reader.requireNumber( "connectOnNoRemoteRingTimeoutMs", POSITIVE_INTERGER, uTimeoutMs ) )
            return false;
        out_config.setConnectOnNoRemoteRingTimeoutMs( uTimeoutMs );
    }
    return true;
}

/// Reads when the inbound side is connected.
bool readInboundSide( xmlNode* in_pElement, const Logger& in_logger, OutboundConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    auto eCondition = out_config.getInboundSideConnectCondition();
    unsigned int uDelayMs = 0;
    if ( !reader.requireKeyword( "condition", Keywords::FXO_OUTBOUND_CONNECT_CONDITION, eCondition ) ||
         !reader.requireNumber( "delayInMs", POSITIVE_INTERGER, uDelayMs ) )
        return false;
    out_config.setInboundSideConnectCondition( eCondition );
    out_config.setConnectDelayMs( uDelayMs );
    return true;
}

bool readOutbound( xmlNode* in_pElement, const Logger& in_logger, OutboundConfig& out_config ) {
    const ElementReader reader( in_pElement, in_logger, FXO_WORDING );
    xmlNode* const pDial = reader.requireChild( "dial" );
    if ( !pDial || !readDialing( pDial, in_logger, out_config ) )
        return false;

    xmlNode* const pSupervision = reader.requireChild( "connectSupervision" );
    if ( !pSupervision )
        return false;
    const ElementReader supervisionReader( pSupervision, in_logger, FXO_WORDING );
    xmlNode* const pOutboundSide = supervisionReader.requireChild( "connectOutboundSide" );
    if ( !pOutboundSide || !readOutboundSide( pOutboundSide, in_logger, out_config ) )
        return false;
    xmlNode* const pConnect = supervisionReader.requireChild( "connect" );
    return pConnect && readInboundSide( pConnect, in_logger, out_config );
}

} // namespace

AnalogCallControlCommonConfig* AnalogFxoConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                                   xmlNode* const in_pElement,
                                                                   XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<AnalogCallControlCommonConfig> pCommonConfig(
        AnalogCallControlCommonConfigXmlSerializer::read( in_hCallControlConfig, in_pElement, in_xmlConfig ) );
    if ( pCommonConfig.isNull() )
        return nullptr;
    const ElementReader reader( in_pElement, getLogger(), FXO_WORDING );
    auto pFxoConfig = dynamicOwnerCast<AnalogFxoConfig>( std::move( pCommonConfig ) );
    if ( !VELQUIN_ASSERT( !pFxoConfig.isNull() ) )
        return nullptr;

    unsigned int uDurationMs = 0;
    if ( !reader.requireNumber( "minimumOnHookDurationMs", LEADING_DECIMAL, uDurationMs ) )
        return nullptr;
    pFxoConfig->setOnHookMinimumDurationMs( uDurationMs );

    xmlNode* const pInbound = reader.requireChild( "inboundCallHandling" );
    UniqueObjPtr<InboundConfig> pInboundConfig( new InboundConfig() );
    if ( !pInbound || !readInbound( pInbound, getLogger(), *pInboundConfig ) ||
         !pFxoConfig->setInboundCallHandlingConfig( pInboundConfig.release() ) )
        return nullptr;

    xmlNode* const pOutbound = reader.requireChild( "outboundCallHandling" );
    UniqueObjPtr<OutboundConfig> pOutboundConfig( new OutboundConfig() );
    if ( !pOutbound || !readOutbound( pOutbound, getLogger(), *pOutboundConfig ) ||
         !pFxoConfig->setOutboundCallHandlingConfig( pOutboundConfig.release() ) )
        return nullptr;

    xmlNode* const pDisconnectSupervision = reader.requireChild( "disconnectSupervision" );
    if ( !pDisconnectSupervision )
        return nullptr;
    // Without a disconnect supervision that can be read, the line is used without any.
    AnalogDisconnectSupervisionConfigXmlSerializer disconnectSupervisionXmlSerializer;
    if ( !pFxoConfig->setDisconnectSupervisionConfig(
             disconnectSupervisionXmlSerializer.read( pDisconnectSupervision, in_xmlConfig ) ) )
        return nullptr;

    if ( !applyToAnalogInterfaces<InterfaceRefXmlSerializer>( reader, *pFxoConfig, in_hCallControlConfig,
                                                              in_xmlConfig ) )
        return nullptr;
    return pFxoConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool AnalogFxoConfigXmlSerializer::write( xmlNode* const, const AnalogCallControlCommonConfig& ) {
    return assertNotImplemented( getLogger(), "AnalogFxoConfigXmlSerializer::write", __FILE__, __LINE__ );
}

AnalogCallControlCommonConfig* AnalogFxoConfigXmlSerializer::newAnalogCallControlCommonConfig() {
    return new ( std::nothrow ) AnalogFxoConfig();
}

bool AnalogFxoConfigXmlSerializer::InterfaceRefXmlSerializer::read( const LimitedObjPtr<AnalogFxoConfig>& in_pFxoConfig,
                                                                    TSHandle<CallControlConfig>& in_hCallControlConfig,
                                                                    xmlNode* const in_pElement,
                                                                    const Config& in_config ) try {
    return VELQUIN_ASSERT( !in_pFxoConfig.isNull() ) &&
           readAnalogInterfaceRef<FxoFamily>( *in_pFxoConfig, in_hCallControlConfig, in_pElement, in_config,
                                              getLogger() );
}
VELQUIN_CATCH_AND_RETURN( getLogger(), false )

} // namespace Velquin::Pstn

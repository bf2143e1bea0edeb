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
PSTN_CONFIG_NESTED_CLASS_IMPL( AnalogFxoConfigXmlSerializer, InterfaceRefXmlSerializer );

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

bool readNotification( const ElementReader& in_reader, InboundConfig& out_config ) {
    return in_reader.require( "condition", Keywords::FXO_NOTIFY_CONDITION, out_config,
                              &InboundConfig::setNotifyCondition ) &&
           ( out_config.getNotifyCondition() != InboundConfig::NotifyCondition::AFTER_N_RING ||
             in_reader.require( "numberOfRings", POSITIVE_INTERGER, out_config, &InboundConfig::setNumberOfRings ) ) &&
           in_reader.require( "delayInMs", POSITIVE_INTERGER, out_config, &InboundConfig::setNotifyDelayMs );
}

bool readInboundConnection( const ElementReader& in_reader, InboundConfig& out_config ) {
    return in_reader.require( "condition", Keywords::FXO_INBOUND_CONNECT_CONDITION, out_config,
                              &InboundConfig::setConnectCondition );
}

bool readCallerId( const ElementReader& in_reader, InboundConfig& out_config ) {
    return in_reader.require( "type", Keywords::FXO_CALLER_ID_TYPE, out_config, &InboundConfig::setCallerIdType );
}

bool readInbound( const ElementReader& in_reader, InboundConfig& out_config ) {
    return in_reader.readChild( "notifyOutboundSide", readNotification, out_config ) &&
           in_reader.readChild( "connect", readInboundConnection, out_config ) &&
           in_reader.readChild( "callerID", readCallerId, out_config );
}

/// The character that marks an international number. It must not be a digit.
char readSpecialCharacter( const AttributeReader& in_reader ) {
    AttributeText text;
    static_cast<void>( in_reader.findText( SPECIAL_CHARACTER, text ) );
    const std::string_view strText = text.view();
    const bool bUsable = strText.size() == 1 && DIGITS.find( strText.front() ) == std::string_view::npos;
    return bUsable ? strText.front() : DEFAULT_SPECIAL_CHARACTER;
}

/// The digits that replace that character. A text with anything but digits is reported and replaced.
std::string readSubstitute( const AttributeReader& in_reader ) {
    AttributeText text;
    if ( !in_reader.findText( SPECIAL_CHARACTER_SUBSTITUTE, text ) )
        return DEFAULT_SUBSTITUTE;
    if ( text.view().find_first_not_of( DIGITS ) == std::string_view::npos )
        return text.c_str();
    Finding finding;
    finding.eKind = Finding::Kind::INVALID_VALUE;
    finding.strRule = Rules::INVALID_VALUE;
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
    reportFinding( in_reader.getLogger(), std::move( finding ), __FILE__, __LINE__ );
    return DEFAULT_SUBSTITUTE;
}

bool readDialing( const ElementReader& in_reader, OutboundConfig& out_config ) {
    if ( !in_reader.require( "active", Keywords::YES_NO, out_config, &OutboundConfig::setDialingActive ) ||
         !in_reader.require( "waitForDialTone", Keywords::YES_NO, out_config, &OutboundConfig::enableWaitForDialTone ) )
        return false;
    out_config.setInternationalDialingSpecialCharacter( readSpecialCharacter( in_reader ) );
    const std::string strSubstitute = readSubstitute( in_reader );
    return out_config.setInternationalDialingSpecialCharacterSubstitute( strSubstitute.c_str() ) &&
           in_reader.require( "preDialDelayInMs", POSITIVE_INTERGER, out_config, &OutboundConfig::setPreDialDelayMs ) &&
           in_reader.require( "interDigitDelayInMs", POSITIVE_INTERGER, out_config,
                              &OutboundConfig::setInterDigitDelayMs ) &&
           in_reader.require( "DTMFDigitDurationInMs", POSITIVE_INTERGER, out_config,
                              &OutboundConfig::setDTMFDigitDurationMs );
}

/// Reads what on the line says that the call is answered.
bool readOutboundSide( const ElementReader& in_reader, OutboundConfig& out_config ) {
    using Supervision = OutboundConfig::ConnectSupervision;
    AttributeText condition;
    if ( !in_reader.requireText( "condition", condition ) )
        return AttributeReader::passOver();
    const Supervision* const pSupervision = Keywords::FXO_CONNECT_SUPERVISION.find( condition.view() );
    // If both condition and timeout are wrong, the log reports the timeout.
    if ( ( !pSupervision || *pSupervision != Supervision::AFTER_DIALING_DESTINATION_NUMBER ) &&
         !in_reader.require( "disconnectTimeoutMs", POSITIVE_INTERGER, out_config,
                             &OutboundConfig::setDisconnectTimeoutMs ) )
        return false;
    return in_reader.require( "condition", Keywords::FXO_CONNECT_SUPERVISION, out_config,
                              &OutboundConfig::setOutboundSideConnectSupervision ) &&
           ( out_config.getOutboundSideConnectSupervision() != Supervision::ON_REMOTE_RING_STOPPED ||
             in_reader.require( "connectOnNoRemoteRingTimeoutMs", POSITIVE_INTERGER, out_config,
                                &OutboundConfig::setConnectOnNoRemoteRingTimeoutMs ) );
}

/// Reads when the gateway connects the inbound side.
bool readInboundSide( const ElementReader& in_reader, OutboundConfig& out_config ) {
    return in_reader.require( "condition", Keywords::FXO_OUTBOUND_CONNECT_CONDITION, out_config,
                              &OutboundConfig::setInboundSideConnectCondition ) &&
           in_reader.require( "delayInMs", POSITIVE_INTERGER, out_config, &OutboundConfig::setConnectDelayMs );
}

bool readSupervision( const ElementReader& in_reader, OutboundConfig& out_config ) {
    return in_reader.readChild( "connectOutboundSide", readOutboundSide, out_config ) &&
           in_reader.readChild( "connect", readInboundSide, out_config );
}

bool readOutbound( const ElementReader& in_reader, OutboundConfig& out_config ) {
    return in_reader.readChild( "dial", readDialing, out_config ) &&
           in_reader.readChild( "connectSupervision", readSupervision, out_config );
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

    if ( !reader.require( "minimumOnHookDurationMs", LEADING_DECIMAL, *pFxoConfig,
                          &AnalogFxoConfig::setOnHookMinimumDurationMs ) ||
         !readPart( reader, "inboundCallHandling", readInbound, *pFxoConfig,
                    &AnalogFxoConfig::setInboundCallHandlingConfig ) ||
         !readPart( reader, "outboundCallHandling", readOutbound, *pFxoConfig,
                    &AnalogFxoConfig::setOutboundCallHandlingConfig ) )
        return nullptr;

    xmlNode* const pDisconnectSupervision = reader.requireChild( "disconnectSupervision" );
    if ( !pDisconnectSupervision && !AttributeReader::passOver() )
        return nullptr;
    // When the disconnect supervision can't be read, the line works without it.
    AnalogDisconnectSupervisionConfigXmlSerializer disconnectSupervisionXmlSerializer;
    if ( pDisconnectSupervision && !pFxoConfig->setDisconnectSupervisionConfig( disconnectSupervisionXmlSerializer.read(
                                       pDisconnectSupervision, in_xmlConfig ) ) )
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

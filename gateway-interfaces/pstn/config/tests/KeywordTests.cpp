#include <cctype>

#include <velquin/StringVector.h>

#include "ConfigTest.h"
#include "DocumentPath.h"
#include "KeywordRows.h"
#include "LogCapture.h"
#include "NumberCheck.h"
#include "hardware/TirvanaProviderConfig.h"
#include "physical/audio/HardwareBackgroundNoiseAttenuationConfig.h"
#include "physical/audio/HardwareDtmfRemovalConfig.h"
#include "xml/Keywords.h"

// The keywords of the format, each read from a document, and the numbers behind them; numbers in attributes.

namespace Velquin::Pstn::Test {

namespace {

// ---- The numbers of the enumerations

/// Whether the words, separated by blanks, are the keywords of the table and stand for consecutive numbers.
template <class E, std::size_t N>
consteval bool isNumbered( const KeywordTable<E, N>& in_table, int in_nFirst, std::string_view in_strWords,
                           std::size_t in_uSynonyms = 0 ) {
    std::size_t uWords = in_uSynonyms;
    for ( ; !in_strWords.empty(); ++uWords, ++in_nFirst ) {
        const std::string_view strWord = in_strWords.substr( 0, in_strWords.find( ' ' ) );
        in_strWords.remove_prefix( strWord.size() == in_strWords.size() ? strWord.size() : strWord.size() + 1 );
        const E* const pValue = in_table.find( strWord );
        if ( !pValue || static_cast<int>( *pValue ) != in_nFirst )
            return false;
    }
    return uWords == N;
}

static_assert( isNumbered( Keywords::TRUE_FALSE, 0, "FALSE TRUE" ) );
static_assert( isNumbered( Keywords::YES_NO, 0, "NO YES" ) );
static_assert( isNumbered( Keywords::ENABLED_DISABLED, 0, "DISABLED ENABLED" ) );
static_assert( isNumbered( Keywords::ANALOG_MEDIA_TYPE, 1, "FXO FXS" ) );
static_assert( static_cast<int>( DigitalInterfacePhysicalConfig::MediaType::E1 ) == 1 );
static_assert( static_cast<int>( DigitalInterfacePhysicalConfig::MediaType::T1 ) == 2 );
static_assert( isNumbered( Keywords::FRAMING, 1, "ESF ESF_Japan D4 CRC4 NonCRC4" ) );
static_assert( isNumbered( Keywords::LINE_ENCODING, 1, "AMI B8ZS HDB3" ) );
static_assert( isNumbered( Keywords::DIGITAL_CLOCKING, 1, "TERMINAL NETWORK" ) );
static_assert( isNumbered( Keywords::LOOPBACK_MODE, 1, "DISABLED" ) );
static_assert( isNumbered( Keywords::RECEIVER_SENSITIVITY, 1, "12dB 18dB 30dB 36dB 43dB" ) );
static_assert( isNumbered( Keywords::E1_SIGNALING, 1, "NONE CAS CCS" ) );
static_assert( isNumbered( Keywords::E1_TERMINATION, 1, "75ohm 120ohm" ) );
static_assert( isNumbered( Keywords::LINE_BUILD_OUT, 1,
                           "0dB -7.5dB -15dB -22.5dB 0-110feet 110-220feet 220-330feet 330-440feet 440-550feet "
                           "550-660feet" ) );
static_assert( isNumbered( Keywords::ANALOG_CLOCKING, 1, "INTERNAL EXTERNAL" ) );
static_assert( Country::INVALID == 0 && !Keywords::COUNTRY.find( "INVALID" ) );
static_assert( Keywords::COUNTRY.find( "CANADA" ) && Keywords::COUNTRY.find( "FRANCE" ) );
static_assert( Keywords::COUNTRY.find( "JAPAN" ) && Keywords::COUNTRY.find( "TBR21" ) );
static_assert( isNumbered( Keywords::ECHO_CANCELLATION_MODE, 1, "NORMAL SPEECH_RECOGNIZER_FRIENDLY DISABLED" ) );
static_assert( isNumbered( Keywords::COMFORT_NOISE_MODE, 1, "NORMAL DISABLED" ) );
static_assert( isNumbered( Keywords::DOUBLE_TALK_BEHAVIOR, 1, "OPTIMAL MORE_RESIDUAL_ECHO MORE_CLIPPING" ) );
static_assert( isNumbered( Keywords::ACOUSTIC_ECHO_CANCELLATION_MODE, 1, "NORMAL DISABLED" ) );
static_assert( isNumbered( Keywords::LEVEL_CONTROL_MODE, 1, "MANUAL AUTOMATIC DISABLED" ) );
static_assert( isNumbered( Keywords::VOICE_DIRECTION, 1, "TO_PSTN FROM_PSTN ALL" ) );
static_assert( isNumbered( Keywords::PCM_LAW, Media::Format::PCMU, "PCMU PCMA" ) );
static_assert( isNumbered( Keywords::CHANNEL_DIRECTION, 0, "IN OUT BIDIR" ) );
static_assert( isNumbered( Keywords::HUNTING_SCHEME, 1, "LINEAR REVERSE_LINEAR" ) );
static_assert( isNumbered( Keywords::TERMINATION, 1, "TERMINAL NETWORK" ) );
static_assert( isNumbered( Keywords::SWITCH_VARIANT, 1, "4ESS 5ESS DMS100 ETSI NI2", 1 ) );
static_assert( *Keywords::SWITCH_VARIANT.find( "EuroISDN" ) == *Keywords::SWITCH_VARIANT.find( "ETSI" ) );
static_assert( isNumbered( Keywords::B_CHANNEL_NEGOTIATION, 1, "PREFERRED EXCLUSIVE" ) );
static_assert( isNumbered( Keywords::TONES_GENERATION, 1, "NEVER ALWAYS AS-NEEDED" ) );
static_assert( isNumbered( Keywords::TONES_INDICATOR, 1, "ALERTING PROGRESS BOTH" ) );
static_assert( isNumbered( Keywords::CALLER_NAME_LOCATION, 1, "DISABLED IN-SETUP-MSG IN-FACILITY-MSG" ) );
static_assert( isNumbered( Keywords::NFAS_D_CHANNEL_MODE, 1, "DISABLED PRIMARY BACKUP" ) );
static_assert( isNumbered( Keywords::FXO_NOTIFY_CONDITION, 0, "ON-FIRST-RING ON-CALLER-ID AFTER-N-RING" ) );
static_assert( isNumbered( Keywords::FXO_INBOUND_CONNECT_CONDITION, 0,
                           "ON-OUTBOUNDSIDE-NOTIFIED ON-OUTBOUNDSIDE-CONNECTED ON-OUTBOUNDSIDE-MEDIA-AVAILABLE" ) );
static_assert( isNumbered( Keywords::FXO_CALLER_ID_TYPE, 0, "BT-Bellcore-FSK-SDMF-MDMF" ) );
static_assert( isNumbered( Keywords::FXO_CONNECT_SUPERVISION, 0,
                           "AFTER-DIALING-DESTINATION-NUMBER ON-VOICE ON-BATTERY-POLARITY-INVERSION "
                           "ON-REMOTE-RING-STOPPED" ) );
static_assert( isNumbered( Keywords::FXO_OUTBOUND_CONNECT_CONDITION, 0,
                           "ON-OUTBOUNDSIDE-CONNECTED ON-OUTBOUNDSIDE-NOTIFIED ON-INBOUNDSIDE-NOTIFICATION" ) );
static_assert( isNumbered( Keywords::FXS_OUT_OF_SERVICE_BEHAVIOR, 0, "NONE REORDER" ) );
static_assert( isNumbered( Keywords::FXS_NOTIFICATION_MODE, 0, "NONE POLARITY-REVERSAL CURRENT-DISCONNECT" ) );

// ---- The attributes

/// What the elements of the complete document become in the model.
struct Model {
    const XmlConfig& config;

    template <class T, class U>
    static const T& as( const U& in_u ) {
        return dynamic_cast<const T&>( in_u );
    }
    auto& provider() const { return as<TirvanaProviderConfig>( *config.getProviderConfig( "tirvana" ) ); }
    auto& port() const { return *config.getAnalogInterfaceConfig( 1, 1 ); }
    auto& analog() const { return as<TirvanaAnalogInterfacePhysicalConfig>( *port().getPhysicalConfig() ); }
    auto& e1() const { return *config.getDigitalInterfaceConfig( 1, 1 )->getPhysicalConfig(); }
    auto& t1() const { return *config.getDigitalInterfaceConfig( 2, 1 )->getPhysicalConfig(); }
    auto& audio() const { return *e1().getAudioConfig(); }
    auto& echo() const { return as<HardwareEchoCancellationConfig>( *audio().getEchoCancellationConfig() ); }
    auto& acoustic() const {
        return as<HardwareAcousticEchoCancellationConfig>( *audio().getAcousticEchoCancellationConfig() );
    }
    auto& level() const { return as<HardwareLevelControlConfig>( *audio().getLevelControlConfig() ); }
    auto& noise() const {
        return as<HardwareBackgroundNoiseAttenuationConfig>( *audio().getBackgroundNoiseAttenuationConfig() );
    }
    auto& dtmf() const { return as<HardwareDtmfRemovalConfig>( *audio().getDtmfRemovalConfig() ); }
    auto callControl() const { return config.getCallControlConfig(); }
    auto& group() const { return *callControl()->getChannelGroupsConfig().at( "in" ); }
    auto& nfas() const { return *callControl()->getIsdnConfig()->getNfasConfigs().at( 1 ); }
    auto& fas() const { return *callControl()->getIsdnConfig()->getFasConfigs().at( 1 ); }
    auto& fxo() const { return *callControl()->getAnalogConfig()->getFxoConfigs().at( 1 ); }
    auto& fxoIn() const { return *fxo().getInboundCallHandlingConfigHandle(); }
    auto& fxoOut() const { return *fxo().getOutboundCallHandlingConfigHandle(); }
    auto& fxs() const { return *callControl()->getAnalogConfig()->getFxsConfigs().at( 1 ); }
    int ringCadence() const {
        const auto& hSupervision = fxo().getDisconnectSupervisonConfigHandle();
        return hSupervision.isNull() ? -1 : static_cast<int>( hSupervision->isRingCadenceDetectionEnabled() );
    }
};

template <class E, std::size_t N>
std::vector<std::pair<std::string, int>> of( const KeywordTable<E, N>& in_table ) {
    std::vector<std::pair<std::string, int>> vecKeywords;
    for ( const auto& [strKeyword, value] : in_table.getEntries() )
        vecKeywords.emplace_back( strKeyword, static_cast<int>( value ) );
    return vecKeywords;
}

/// The names of the priorities are those of the gateway's core.
std::vector<std::pair<std::string, int>> ofPriorities() {
    std::vector<std::pair<std::string, int>> vecKeywords;
    for ( int nCode = Priority::LOWEST; nCode <= Priority::HIGHEST; ++nCode )
        vecKeywords.emplace_back( Priority( static_cast<Priority::Code>( nCode ) ).getName(), nCode );
    return vecKeywords;
}

} // namespace

#define VALUE( expression )                                                                                            \
    []( const XmlConfig& in_config ) {                                                                                 \
        const Model m{ in_config };                                                                                    \
        return static_cast<int>( m.expression );                                                                       \
    }

std::vector<KeywordRow> getKeywordRows() {
    using namespace Keywords;
    const std::vector<Edit> vecScheme{
        { "\"in\" direction=\"IN\"", "\"in\" direction=\"IN\" outboundHuntingScheme=\"LINEAR\"" } };
    const std::vector<Edit> vecOutbound{ { "\"in\" direction=\"IN\"", "\"in\" direction=\"OUT\"" } };
    const std::vector<Edit> vecPhone{ { "\"Line-A\"", "\"Line-A\" phoneNumber=\"\" callerName=\"\"" } };
    const std::vector<Edit> vecNoDChannel{ { "<DChannelT1 channelIndex=\"24\" mtuSize=\"261\"/>", "" },
                                           { "\"BACKUP\"", "\"DISABLED\"" } };
    const std::vector<Edit> vecDelay{ { "<nfasGroup ", "<nfasGroup waitFacilityDelayMs=\"1\" " } };
    return {
        { "/BChannelsThreads", "priority", ofPriorities(),
          VALUE( provider().getBChannelsThreadsConfig().getThreadsPriority().getCode() ) },
        { "/DChannelsThreads", "priority", ofPriorities(),
          VALUE( provider().getDChannelsThreadsConfig().getThreadsPriority().getCode() ) },
        { "/TxMediaStreams", "reverseBits", of( TRUE_FALSE ),
          VALUE( provider().isReverseBitsOfTxMediaStreamsEnabled() ) },
        { "/RxMediaStreams", "reverseBits", of( TRUE_FALSE ),
          VALUE( provider().isReverseBitsOfRxMediaStreamsEnabled() ) },
        { "/tirvanaAnalogBoard/interface", "type", of( ANALOG_MEDIA_TYPE ), VALUE( port().getMediaType() ), vecPhone },
        { "/digitalE1", "framing", of( FRAMING ), VALUE( e1().getFraming() ) },
        { "/digitalT1", "framing", of( FRAMING ), VALUE( t1().getFraming() ) },
        { "/digitalE1", "lineEncoding", of( LINE_ENCODING ), VALUE( e1().getLineEncoding() ) },
        { "/digitalT1", "lineEncoding", of( LINE_ENCODING ), VALUE( t1().getLineEncoding() ) },
        { "/digitalE1", "clocking", of( DIGITAL_CLOCKING ), VALUE( e1().getClockingMode() ) },
        { "/digitalT1", "clocking", of( DIGITAL_CLOCKING ), VALUE( t1().getClockingMode() ) },
        { "/digitalE1", "loopbackMode", of( LOOPBACK_MODE ), VALUE( e1().getLoopbackMode() ) },
        { "/digitalT1", "loopbackMode", of( LOOPBACK_MODE ), VALUE( t1().getLoopbackMode() ) },
        { "/digitalE1", "receiverSensitivity", of( RECEIVER_SENSITIVITY ), VALUE( e1().getRxSensitivity() ) },
        { "/digitalT1", "receiverSensitivity", of( RECEIVER_SENSITIVITY ), VALUE( t1().getRxSensitivity() ) },
        { "/digitalE1", "highImpedance", of( ENABLED_DISABLED ), VALUE( e1().isHighImpedanceEnable() ) },
        { "/digitalT1", "highImpedance", of( ENABLED_DISABLED ), VALUE( t1().isHighImpedanceEnable() ) },
        { "/digitalE1", "E1Signaling", of( E1_SIGNALING ), VALUE( e1().getE1Signaling() ) },
        { "/digitalE1", "E1Termination", of( E1_TERMINATION ), VALUE( e1().getE1Termination() ) },
        { "/digitalT1", "LBO", of( LINE_BUILD_OUT ), VALUE( t1().getLBOMode() ) },
        { "/DChannelE1", "RecordToPcapFile", of( YES_NO ), VALUE( e1().getDChannelConfig()->isPcapRecorderEnabled() ) },
        { "/DChannelT1", "RecordToPcapFile", of( YES_NO ), VALUE( t1().getDChannelConfig()->isPcapRecorderEnabled() ) },
        { "/tirvanaAnalogConfig/analog", "variant", of( COUNTRY ), VALUE( analog().getVariantType() ) },
        { "/tirvanaAnalogConfig/analog", "clocking", of( ANALOG_CLOCKING ), VALUE( analog().getClocking() ) },
        { "/audio", "defaultPcmLaw", of( PCM_LAW ), VALUE( audio().getMediaFormat().getType() ) },
        { "/EchoCancellation", "mode", of( ECHO_CANCELLATION_MODE ), VALUE( echo().getMode() ) },
        { "/EchoCancellation", "comfortNoiseMode", of( COMFORT_NOISE_MODE ), VALUE( echo().getComfortNoiseMode() ) },
        { "/EchoCancellation", "doubleTalkBehavior", of( DOUBLE_TALK_BEHAVIOR ),
          VALUE( echo().getDoubleTalkBehavior() ) },
        { "/AcousticEchoCancellation", "mode", of( ACOUSTIC_ECHO_CANCELLATION_MODE ), VALUE( acoustic().getMode() ) },
        { "/LevelControl", "mode", of( LEVEL_CONTROL_MODE ), VALUE( level().getMode() ) },
        { "/LevelControl", "direction", of( VOICE_DIRECTION ), VALUE( level().getDirection() ) },
        { "/BackgroundNoiseAttenuation", "mode", of( ENABLED_DISABLED ), VALUE( noise().isEnabled() ) },
        { "/BackgroundNoiseAttenuation", "direction", of( VOICE_DIRECTION ), VALUE( noise().getDirection() ) },
        { "/DTMFRemoval", "mode", of( ENABLED_DISABLED ), VALUE( dtmf().isEnabled() ) },
        { "/DTMFRemoval", "direction", of( VOICE_DIRECTION ), VALUE( dtmf().getDirection() ) },
        { "/channelGroup", "direction", of( CHANNEL_DIRECTION ), VALUE( group().getDirection() ), vecScheme },
        { "/channelGroup", "outboundHuntingScheme", of( HUNTING_SCHEME ), VALUE( group().getOutboundHuntingScheme() ),
          vecOutbound },
        { "/nfasGroup", "termination", of( TERMINATION ), VALUE( nfas().getTermination() ) },
        { "/nfasGroup", "switchVariant", of( SWITCH_VARIANT ), VALUE( nfas().getSwitchVariant() ) },
        { "/nfasGroup", "BChannelNegotiation", of( B_CHANNEL_NEGOTIATION ), VALUE( nfas().getBChannelNegociation() ) },
        { "/nfasGroup", "initiateRestartProcedure", of( YES_NO ), VALUE( nfas().getInitiateRestartProcedure() ) },
        { "/nfasGroup", "inbandProgressTonesGeneration", of( TONES_GENERATION ),
          VALUE( nfas().getInbandProgressTonesGeneration() ) },
        { "/nfasGroup", "inbandProgressTonesIndicator", of( TONES_INDICATOR ),
          VALUE( nfas().getInbandProgressTonesIndicator() ) },
        { "/nfasGroup", "callerNameLocation", of( CALLER_NAME_LOCATION ), VALUE( nfas().getCallerNameLocation() ),
          vecDelay },
        { "/fasConfig", "termination", of( TERMINATION ), VALUE( fas().getTermination() ) },
        { "/fasConfig", "switchVariant", of( SWITCH_VARIANT ), VALUE( fas().getSwitchVariant() ) },
        { "/fasConfig", "BChannelNegotiation", of( B_CHANNEL_NEGOTIATION ), VALUE( fas().getBChannelNegociation() ) },
        { "/fasConfig", "initiateRestartProcedure", of( YES_NO ), VALUE( fas().getInitiateRestartProcedure() ) },
        { "/fasConfig", "inbandProgressTonesGeneration", of( TONES_GENERATION ),
          VALUE( fas().getInbandProgressTonesGeneration() ) },
        { "/fasConfig", "inbandProgressTonesIndicator", of( TONES_INDICATOR ),
          VALUE( fas().getInbandProgressTonesIndicator() ) },
        { "/fasConfig", "callerNameLocation", of( CALLER_NAME_LOCATION ), VALUE( fas().getCallerNameLocation() ) },
        { "/member", "DChannelMode", of( NFAS_D_CHANNEL_MODE ),
          VALUE( nfas().getMemberInterfaces().begin()->second->getDChannelMode() ), vecNoDChannel, "DISABLED" },
        { "/notifyOutboundSide", "condition", of( FXO_NOTIFY_CONDITION ), VALUE( fxoIn().getNotifyCondition() ) },
        { "/inboundCallHandling/connect", "condition", of( FXO_INBOUND_CONNECT_CONDITION ),
          VALUE( fxoIn().getConnectCondition() ) },
        { "/callerID", "type", of( FXO_CALLER_ID_TYPE ), VALUE( fxoIn().getCallerIdType() ) },
        { "/dial", "active", of( YES_NO ), VALUE( fxoOut().isDialingActive() ) },
        { "/dial", "waitForDialTone", of( YES_NO ), VALUE( fxoOut().isWaitForDialToneEnabled() ) },
        { "/connectOutboundSide", "condition", of( FXO_CONNECT_SUPERVISION ),
          VALUE( fxoOut().getOutboundSideConnectSupervision() ) },
        { "/connectSupervision/connect", "condition", of( FXO_OUTBOUND_CONNECT_CONDITION ),
          VALUE( fxoOut().getInboundSideConnectCondition() ) },
        { "/ringCadenceDetector", "active", of( YES_NO ), VALUE( ringCadence() ), {}, "", -1 },
        { "/analogFxsConfig", "oosBehavior", of( FXS_OUT_OF_SERVICE_BEHAVIOR ),
          VALUE( fxs().getOutOfServiceBehavior() ) },
        { "/relayEarlyMedia",
          "value",
          of( ENABLED_DISABLED ),
          VALUE( fxs().getInboundCallHandlingConfigHandle()->isRelayEarlyMediaEnabled() ),
          {},
          "",
          1 },
        { "/hotlineDialing", "enable", of( YES_NO ), VALUE( fxs().getHotlineDialingConfigHandle()->isEnabled() ) },
        { "/disconnectAnswerNotification",
          "mode",
          of( FXS_NOTIFICATION_MODE ),
          VALUE( fxs().getDisconnectAnswerNotificationConfig()->getMode() ),
          {},
          "",
          0 },
    };
}

#undef VALUE

namespace {

std::string swapCase( std::string in_strText ) {
    for ( char& c : in_strText )
        c = static_cast<char>( std::islower( c ) ? std::toupper( c ) : std::tolower( c ) );
    return in_strText;
}

} // namespace

TEST( Keywords, AreReadExactly ) {
    const Velquin::Test::LogCapture quiet( Logger::ERROR_LEVEL );
    for ( const KeywordRow& row : getKeywordRows() ) {
        for ( const auto& [strKeyword, nValue] : row.vecKeywords ) {
            std::string strText =
                TestDocument()
                    .edit( row.strInNeed.empty() || row.strInNeed == strKeyword ? row.vecNeeds : std::vector<Edit>{} )
                    .getText();
            const Tag tag = findTag( strText, row.strPath );
            const std::string strTag = strText.substr( tag.uBegin, tag.uLength );
            const auto loadWith = [&]( XmlConfig& out_config, const std::string& in_strValue ) {
                const TemporaryFile file( std::string( strText ).replace(
                    tag.uBegin, tag.uLength, setAttribute( strTag, row.strAttribute, in_strValue ) ) );
                return load( out_config, file.getPath() );
            };
            SCOPED_TRACE( row.strPath + "/@" + row.strAttribute + "=" + strKeyword );
            XmlConfig config;
            const LoadResult result = loadWith( config, strKeyword );
            EXPECT_EQ( join( result.vecLines ), "" );
            ASSERT_TRUE( result.bValid );
            EXPECT_EQ( row.get( config ), nValue );
            for ( const std::string& strWrong : { swapCase( strKeyword ), strKeyword + " ", " " + strKeyword } ) {
                SCOPED_TRACE( strWrong );
                XmlConfig wrong;
                const LoadResult refusal = loadWith( wrong, strWrong );
                EXPECT_EQ( refusal.bValid, row.nUnknown != KeywordRow::REFUSED );
                EXPECT_EQ( refusal.vecLines.empty(), row.nUnknown >= 0 );
                if ( refusal.bValid ) {
                    EXPECT_EQ( row.get( wrong ), row.nUnknown );
                }
            }
        }
    }
}

// ---- Numbers

// fuzz/number.cpp asks the same of texts at random.
TEST( Numbers, AreTakenAsAStreamTakesThem ) {
    const std::string strZeros( 400, '0' );
    StringVector vecTexts;
    strTokenize( "| |0|-0|+0|00|007|12abc| 12|\t\n\v\f\r12|12 |1 2|+12|-12|+-1|--1|- 1|-|+|0x10|0X1F|x|1,000|1.5|.5|"
                 "-.5|5.|.|-.|1.2.3|..1|1e3|1E3|1e+3|1e-3|1e|1e+|1e-|1ee|1e5e5|1e5.5|e5|.e5|0e|inf|-inf|INFINITY|nan|"
                 "NaN|1_0|\xD9\xA1|\xC2\xA0"
                 "1|0b1|1f|1u|1'000|0.1|2147483647|2147483648|-2147483648|-2147483649|"
                 "4294967295|4294967296|-4294967295|-4294967296|18446744073709551615|18446744073709551616|"
                 "-18446744073709551615|-18446744073709551616|99999999999999999999999999|1e308|1.8e308|-1.8e308|1e309|"
                 "4.9e-324|1e-310|2e-324|1e-400|-1e-400|0e999|1e99999999999999999999|1e-99999999999999999999|"
                 "9007199254740993|0.1000000000000000055511151231257827021181583404541",
                 vecTexts, '|' );
    vecTexts.insert( vecTexts.end(), { "1" + strZeros, "-1" + strZeros, strZeros + "1", "0." + strZeros + "1",
                                       "1" + strZeros + "e-10", "1" + strZeros + "e-400", "0." + strZeros + "1e401",
                                       "0." + strZeros + "1e10", "." + strZeros + "e5" } );
    for ( const std::string& strText : vecTexts )
        EXPECT_STREQ( findNumberFault( strText ), nullptr ) << '"' << strText << '"';
}

} // namespace Velquin::Pstn::Test

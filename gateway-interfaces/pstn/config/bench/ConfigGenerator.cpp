#include "ConfigGenerator.h"

#include <limits>
#include <ostream>
#include <stdexcept>

namespace Velquin::Pstn {

namespace {

constexpr const char* AUDIO_E1 = R"(      <audio defaultPcmLaw="PCMA" toneSetName="EUROPE" voicePacketLengthInMs="20">
)";
constexpr const char* AUDIO_T1 = R"(      <audio defaultPcmLaw="PCMU" toneSetName="AMERICA" voicePacketLengthInMs="20">
)";
constexpr const char* VOICE_PROCESSING =
    R"(        <EchoCancellation type="HARDWARE" mode="NORMAL" comfortNoiseMode="NORMAL" tailDisplacementInMs="0" doubleTalkBehavior="OPTIMAL"/>
        <AcousticEchoCancellation type="HARDWARE" mode="DISABLED"/>
        <LevelControl type="HARDWARE" mode="DISABLED" direction="ALL" gainIndB="0" targetLevelIndBM0="-20"/>
        <BackgroundNoiseAttenuation type="HARDWARE" mode="DISABLED" direction="ALL" attenuationIndB="12"/>
        <DTMFRemoval type="HARDWARE" mode="DISABLED" direction="FROM_PSTN"/>
      </audio>
)";
constexpr const char* LINE_E1 =
    R"(      <digitalE1 framing="CRC4" lineEncoding="HDB3" clocking="TERMINAL" loopbackMode="DISABLED" E1Signaling="CCS" E1Termination="120ohm">
        <DChannelE1 channelIndex="16" mtuSize="260"/>
      </digitalE1>
)";
constexpr const char* LINE_T1 =
    R"(      <digitalT1 framing="ESF" lineEncoding="B8ZS" clocking="TERMINAL" loopbackMode="DISABLED" LBO="0dB">
        <DChannelT1 channelIndex="24" mtuSize="260"/>
      </digitalT1>
)";
constexpr const char* LINE_T1_WITHOUT_DCHANNEL =
    R"(      <digitalT1 framing="ESF" lineEncoding="B8ZS" clocking="TERMINAL" loopbackMode="DISABLED" LBO="0dB"/>
)";
constexpr const char* LINE_ANALOG = R"(      <analog variant="TBR21"/>
)";
constexpr const char* FXO =
    R"(      <analogFxoConfig ID="1" displayName="Lines" minimumOnHookDurationMs="800">
        <inboundCallHandling>
          <notifyOutboundSide condition="AFTER-N-RING" numberOfRings="2" delayInMs="100"/>
          <connect condition="ON-OUTBOUNDSIDE-CONNECTED"/>
          <callerID type="BT-Bellcore-FSK-SDMF-MDMF"/>
        </inboundCallHandling>
        <outboundCallHandling>
          <dial active="YES" waitForDialTone="YES" preDialDelayInMs="200" interDigitDelayInMs="60" DTMFDigitDurationInMs="80"/>
          <connectSupervision>
            <connectOutboundSide condition="ON-VOICE" disconnectTimeoutMs="60000"/>
            <connect condition="ON-OUTBOUNDSIDE-CONNECTED" delayInMs="0"/>
          </connectSupervision>
        </outboundCallHandling>
        <disconnectSupervision>
          <disconnectDetectors>
            <ringCadenceDetector active="YES" ringCadenceOffDelayMs="6000"/>
            <detector name="busy" sequence="busy/2,silence"/>
          </disconnectDetectors>
        </disconnectSupervision>
)";
constexpr const char* FXS =
    R"(      <analogFxsConfig ID="1" displayName="Telephones" regretTimeMs="300" oosBehavior="REORDER">
        <inboundCallHandling minExpectedDigits="3" interDigitTimeoutMs="4000" busyToneDurationMs="30000" dialToneDurationMs="20000">
          <relayEarlyMedia value="DISABLED"/>
        </inboundCallHandling>
        <hotlineDialing enable="NO"/>
)";

/// The digital boards, and the spans on them, that a physical configuration is for.
enum class SpanKind { FAS, NFAS_WITH_DCHANNEL, NFAS_WITHOUT_DCHANNEL };

/// Spans of an NFAS group that have a D-channel: the primary and the backup.
constexpr unsigned int NFAS_DCHANNELS = 2;

class Generator {
public:
    Generator( const ConfigShape& in_shape, std::ostream& inout_stream )
        : m_shape( in_shape ), m_stream( inout_stream ) {}

    void write() {
        m_stream << R"(<?xml version="1.0" encoding="UTF-8"?>
<pstnConfig version="2.3">
  <providers>
    <tirvana>
      <BChannelsThreads count="4" priority="HIGH"/>
      <DChannelsThreads count="1" priority="NORMAL"/>
    </tirvana>
  </providers>
  <boards>
)";
        writeDigitalBoards();
        writeVirtualBoards();
        writeAnalogBoards();
        m_stream << "  </boards>\n  <physicalInterfaceConfigs>\n";
        writePhysicalConfigs();
        m_stream << "  </physicalInterfaceConfigs>\n  <callControl>\n    <channelGroups>\n";
        writeChannelGroups();
        m_stream << "    </channelGroups>\n";
        if ( getDigitalBoards() > 0 ) {
            m_stream << "    <isdn>\n";
            writeNfasGroups();
            writeFasGroups();
            m_stream << "    </isdn>\n";
        }
        if ( m_shape.uAnalogBoards > 0 )
            writeAnalogCallControl();
        m_stream << "  </callControl>\n</pstnConfig>\n";
    }

private:
    // Digital boards in the order of their identifiers: those with FAS, those with NFAS, virtual ones.
    unsigned int getFirstNfasBoard() const { return m_shape.uDigitalBoards + 1; }
    unsigned int getFirstVirtualBoard() const { return getFirstNfasBoard() + m_shape.uNfasGroups; }
    unsigned int getDigitalBoards() const { return getFirstVirtualBoard() - 1 + m_shape.uVirtualBoards; }
    unsigned int getSpans( unsigned int in_uBoard ) const {
        return in_uBoard < getFirstVirtualBoard() ? m_shape.uSpans : m_shape.uVirtualSpans;
    }
    static bool isFxo( unsigned int in_uAnalogBoard ) { return in_uAnalogBoard % 2 == 1; }

    void writeDigitalBoards() {
        for ( unsigned int uBoard = 1; uBoard < getFirstVirtualBoard(); ++uBoard ) {
            const char* const szLine =
                m_shape.eLine == ConfigShape::Line::T1 || uBoard >= getFirstNfasBoard() ? "T1" : "E1";
            m_stream << "    <tirvanaDigitalBoard ID=\"" << uBoard << "\" displayName=\"" << szLine << " card "
                     << uBoard << "\" model=\"TVD-" << m_shape.uSpans << '"'
                     << ( m_shape.uSpans > 0 ? " primaryClockReference=\"1\"" : "" ) << ">\n";
            for ( unsigned int uSpan = 1; uSpan <= m_shape.uSpans; ++uSpan )
                m_stream << "      <interface ID=\"" << uSpan << "\" displayName=\"" << szLine << '-' << uBoard << '-'
                         << uSpan << "\" tirpipe=\"" << m_uTirpipe++ << "\"/>\n";
            m_stream << "    </tirvanaDigitalBoard>\n";
        }
    }

    void writeVirtualBoards() {
        const unsigned int uFirst = getFirstVirtualBoard();
        for ( unsigned int uBoard = uFirst; uBoard <= getDigitalBoards(); ++uBoard ) {
            const unsigned int uPeer = ( uBoard - uFirst ) % 2 == 0 ? uBoard + 1 : uBoard - 1;
            m_stream << "    <tirvanaVirtualDigitalBoard ID=\"" << uBoard << "\" displayName=\"Link " << uBoard
                     << "\" model=\"virtual\">\n";
            for ( unsigned int uSpan = 1; uSpan <= m_shape.uVirtualSpans; ++uSpan )
                m_stream << "      <interface ID=\"" << uSpan << "\" displayName=\"Link-" << uBoard << '-' << uSpan
                         << "\" peerVirtualInterfaceID=\"" << uSpan << "\" peerVirtualBoardID=\"" << uPeer << "\"/>\n";
            m_stream << "    </tirvanaVirtualDigitalBoard>\n";
        }
    }

    void writeAnalogBoards() {
        for ( unsigned int uBoard = 1; uBoard <= m_shape.uAnalogBoards; ++uBoard ) {
            m_stream << "    <tirvanaAnalogBoard ID=\"" << uBoard << "\" displayName=\""
                     << ( isFxo( uBoard ) ? "Lines " : "Telephones " ) << uBoard << "\" model=\"TVA-" << m_shape.uPorts
                     << "\" tirpipe=\"" << m_uTirpipe++ << "\">\n";
            for ( unsigned int uPort = 1; uPort <= m_shape.uPorts; ++uPort ) {
                m_stream << "      <interface ID=\"" << uPort << "\" displayName=\""
                         << ( isFxo( uBoard ) ? "Line-" : "Phone-" ) << uBoard << '-' << uPort
                         << "\" tirpipeInterface=\"" << uPort << '"';
                if ( isFxo( uBoard ) )
                    m_stream << " type=\"FXO\"/>\n";
                else
                    m_stream << " type=\"FXS\" phoneNumber=\"" << uBoard << '-' << uPort << "\" callerName=\"Desk "
                             << uPort << "\"/>\n";
            }
            m_stream << "    </tirvanaAnalogBoard>\n";
        }
    }

    void writePhysicalConfigs() {
        const bool bE1 = m_shape.eLine == ConfigShape::Line::E1;
        if ( m_shape.uDigitalBoards > 0 || m_shape.uVirtualBoards > 0 )
            writeDigitalConfig( bE1 ? "E1" : "T1", bE1 ? AUDIO_E1 : AUDIO_T1, bE1 ? LINE_E1 : LINE_T1, SpanKind::FAS );
        if ( m_shape.uNfasGroups > 0 ) {
            writeDigitalConfig( "T1 with D-channel", AUDIO_T1, LINE_T1, SpanKind::NFAS_WITH_DCHANNEL );
            if ( m_shape.uSpans > NFAS_DCHANNELS )
                writeDigitalConfig( "T1 without D-channel", AUDIO_T1, LINE_T1_WITHOUT_DCHANNEL,
                                    SpanKind::NFAS_WITHOUT_DCHANNEL );
        }
        if ( m_shape.uAnalogBoards > 0 ) {
            m_stream << "    <tirvanaAnalogConfig ID=\"" << ++m_uPhysicalConfigs << "\" displayName=\"Analog\">\n"
                     << AUDIO_E1 << VOICE_PROCESSING << LINE_ANALOG << "      <applyTo>\n";
            for ( unsigned int uBoard = 1; uBoard <= m_shape.uAnalogBoards; ++uBoard )
                writeReferences( "        ", uBoard, m_shape.uPorts, "/>\n" );
            m_stream << "      </applyTo>\n    </tirvanaAnalogConfig>\n";
        }
    }

    void writeDigitalConfig( const char* in_szName, const char* in_szAudio, const char* in_szLine, SpanKind in_eKind ) {
        m_stream << "    <tirvanaDigitalConfig ID=\"" << ++m_uPhysicalConfigs << "\" displayName=\"" << in_szName
                 << "\">\n"
                 << in_szAudio << VOICE_PROCESSING << in_szLine << "      <applyTo>\n";
        for ( unsigned int uBoard = 1; uBoard <= getDigitalBoards(); ++uBoard ) {
            const bool bNfas = uBoard >= getFirstNfasBoard() && uBoard < getFirstVirtualBoard();
            if ( bNfas != ( in_eKind != SpanKind::FAS ) )
                continue;
            if ( !bNfas ) {
                writeReferences( "        ", uBoard, getSpans( uBoard ), "/>\n" );
                continue;
            }
            for ( unsigned int uSpan = 1; uSpan <= m_shape.uSpans; ++uSpan ) {
                if ( ( uSpan <= NFAS_DCHANNELS ) == ( in_eKind == SpanKind::NFAS_WITH_DCHANNEL ) )
                    writeReference( "        ", uBoard, uSpan, "/>\n" );
            }
        }
        m_stream << "      </applyTo>\n    </tirvanaDigitalConfig>\n";
    }

    void writeReference( const char* in_szIndent, unsigned int in_uBoard, unsigned int in_uInterface,
                         const char* in_szEnd ) {
        m_stream << in_szIndent << "<interfaceRef boardID=\"" << in_uBoard << "\" interfaceID=\"" << in_uInterface
                 << '"' << in_szEnd;
    }

    /// Names all interfaces of a board.
    void writeReferences( const char* in_szIndent, unsigned int in_uBoard, unsigned int in_uInterfaces,
                          const char* in_szEnd ) {
        if ( m_shape.eReferences == ConfigShape::References::PER_BOARD )
            m_stream << in_szIndent << "<interfaceRef boardID=\"" << in_uBoard << '"' << in_szEnd;
        else
            for ( unsigned int uInterface = 1; uInterface <= in_uInterfaces; ++uInterface )
                writeReference( in_szIndent, in_uBoard, uInterface, in_szEnd );
    }

    void writeChannelGroups() {
        const auto writeGroups = [this]( const char* in_szPrefix, unsigned int in_uBoards ) {
            for ( unsigned int uBoard = 1; uBoard <= in_uBoards; ++uBoard )
                m_stream << "      <channelGroup ID=\"" << in_szPrefix << uBoard
                         << "\" direction=\"BIDIR\" outboundHuntingScheme=\"LINEAR\"/>\n";
        };
        writeGroups( "digital-", getDigitalBoards() );
        writeGroups( "analog-", m_shape.uAnalogBoards );
    }

    void writeRange( unsigned int in_uBoard, unsigned int in_uFirst, unsigned int in_uLast ) {
        m_stream << "            <BChannelRange channelGroupID=\"digital-" << in_uBoard << "\" firstChannel=\""
                 << in_uFirst << "\" lastChannel=\"" << in_uLast << "\"/>\n";
    }

    void writeNfasGroups() {
        for ( unsigned int uGroup = 1; uGroup <= m_shape.uNfasGroups; ++uGroup ) {
            const unsigned int uBoard = getFirstNfasBoard() + uGroup - 1;
            m_stream << "      <nfasGroup ID=\"" << uGroup
                     << "\" termination=\"TERMINAL\" switchVariant=\"NI2\" BChannelNegotiation=\"PREFERRED\">\n"
                        "        <members>\n";
            for ( unsigned int uSpan = 1; uSpan <= m_shape.uSpans; ++uSpan ) {
                m_stream << "          <member nfasInterfaceID=\"" << uSpan - 1 << "\" DChannelMode=\""
                         << ( uSpan == 1 ? "PRIMARY" : ( uSpan == NFAS_DCHANNELS ? "BACKUP" : "DISABLED" ) )
                         << "\" boardID=\"" << uBoard << "\" interfaceID=\"" << uSpan << "\">\n";
                writeRange( uBoard, 1, uSpan <= NFAS_DCHANNELS ? 23 : 24 );
                m_stream << "          </member>\n";
            }
            m_stream << "        </members>\n      </nfasGroup>\n";
        }
    }

    void writeFasGroups() {
        for ( unsigned int uBoard = 1; uBoard <= getDigitalBoards(); ++uBoard ) {
            if ( uBoard >= getFirstNfasBoard() && uBoard < getFirstVirtualBoard() )
                continue;
            const unsigned int uSpans = getSpans( uBoard );
            if ( m_shape.eFas == ConfigShape::Fas::PER_SPAN ) {
                for ( unsigned int uSpan = 1; uSpan <= uSpans; ++uSpan )
                    writeFasGroup( uBoard, uSpan, uSpan );
            } else if ( m_shape.eReferences == ConfigShape::References::PER_INTERFACE ) {
                writeFasGroup( uBoard, 1, uSpans );
            } else {
                writeFasGroup( uBoard, 0, 0 );
            }
        }
    }

    /// @param in_uFirstSpan the first span to name; 0 names the whole board
    void writeFasGroup( unsigned int in_uBoard, unsigned int in_uFirstSpan, unsigned int in_uLastSpan ) {
        m_stream << "      <fasConfig ID=\"" << ++m_uFasGroups
                 << "\" termination=\"TERMINAL\" switchVariant=\"ETSI\" BChannelNegotiation=\"EXCLUSIVE\">\n"
                    "        <applyTo>\n";
        for ( unsigned int uSpan = in_uFirstSpan; uSpan <= in_uLastSpan; ++uSpan ) {
            if ( uSpan == 0 )
                m_stream << "          <interfaceRef boardID=\"" << in_uBoard << "\">\n";
            else
                writeReference( "          ", in_uBoard, uSpan, ">\n" );
            if ( m_shape.eLine == ConfigShape::Line::E1 ) {
                writeRange( in_uBoard, 1, 15 );
                writeRange( in_uBoard, 17, 31 );
            } else {
                writeRange( in_uBoard, 1, 23 );
            }
            m_stream << "          </interfaceRef>\n";
        }
        m_stream << "        </applyTo>\n      </fasConfig>\n";
    }

    void writeAnalogCallControl() {
        m_stream << "    <analog>\n" << FXO;
        writeAnalogApplyTo( true );
        m_stream << "      </analogFxoConfig>\n";
        if ( m_shape.uAnalogBoards > 1 ) {
            m_stream << FXS;
            writeAnalogApplyTo( false );
            m_stream << "      </analogFxsConfig>\n";
        }
        m_stream << "    </analog>\n";
    }

    void writeAnalogApplyTo( bool in_bFxo ) {
        m_stream << "        <applyTo>\n";
        for ( unsigned int uBoard = 1; uBoard <= m_shape.uAnalogBoards; ++uBoard ) {
            if ( isFxo( uBoard ) == in_bFxo )
                writeReferences( "          ", uBoard, m_shape.uPorts,
                                 ( " channelGroupID=\"analog-" + std::to_string( uBoard ) + "\"/>\n" ).c_str() );
        }
        m_stream << "        </applyTo>\n";
    }

    const ConfigShape& m_shape;
    std::ostream& m_stream;
    unsigned int m_uTirpipe = 0;
    unsigned int m_uPhysicalConfigs = 0;
    unsigned int m_uFasGroups = 0;
};

/// How many parts of that size the whole needs.
constexpr unsigned int divideRoundingUp( unsigned int in_uWhole, unsigned int in_uSize ) {
    return in_uWhole / in_uSize + ( in_uWhole % in_uSize == 0 ? 0 : 1 );
}

} // namespace

unsigned long long ConfigShape::getInterfaces() const noexcept {
    return static_cast<unsigned long long>( uAnalogBoards ) * uPorts +
           ( static_cast<unsigned long long>( uDigitalBoards ) + uNfasGroups ) * uSpans +
           static_cast<unsigned long long>( uVirtualBoards ) * uVirtualSpans;
}

std::string ConfigShape::getFault() const {
    if ( eFas == Fas::NONE && ( uDigitalBoards > 0 || uVirtualBoards > 0 ) )
        return "digital and virtual spans need FAS groups: every span must have call control";
    if ( uVirtualBoards % 2 != 0 )
        return "virtual boards are linked in pairs: their number must be even";
    if ( uNfasGroups > 0 && uSpans == 0 )
        return "an NFAS group needs at least one span";
    constexpr unsigned long long ullMax = std::numeric_limits<unsigned int>::max();
    if ( static_cast<unsigned long long>( uDigitalBoards ) + uNfasGroups + uVirtualBoards > ullMax ||
         getInterfaces() > ullMax - uAnalogBoards )
        return "more boards or interfaces than there are identifiers";
    return {};
}

ConfigShape getNamedShape( std::string_view in_strName, unsigned int in_uInterfaces ) {
    ConfigShape shape;
    if ( in_strName == "trunks" ) {
        shape.uDigitalBoards = divideRoundingUp( in_uInterfaces, shape.uSpans );
    } else if ( in_strName == "carrier" ) {
        shape.eLine = ConfigShape::Line::T1;
        shape.eFas = ConfigShape::Fas::NONE;
        shape.uNfasGroups = divideRoundingUp( in_uInterfaces, shape.uSpans );
    } else if ( in_strName == "mixed" ) {
        const unsigned int uUnits = divideRoundingUp( in_uInterfaces, 64 );
        shape.uAnalogBoards = uUnits * 2;
        shape.uDigitalBoards = uUnits * 2;
        shape.uVirtualBoards = uUnits * 2;
        shape.eFas = ConfigShape::Fas::PER_BOARD;
        shape.eReferences = ConfigShape::References::PER_BOARD;
    } else {
        throw std::invalid_argument( "unknown shape \"" + std::string( in_strName ) + "\"" );
    }
    return shape;
}

void generateConfig( const ConfigShape& in_shape, std::ostream& inout_stream ) {
    if ( const std::string strFault = in_shape.getFault(); !strFault.empty() )
        throw std::invalid_argument( strFault );
    Generator( in_shape, inout_stream ).write();
}

} // namespace Velquin::Pstn

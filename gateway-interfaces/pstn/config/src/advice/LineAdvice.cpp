#include <algorithm>
#include <string>

#include "advice/AdviceTable.h"
#include "hardware/TirvanaDigitalBoardConfig.h"
#include "physical/audio/AudioConfig.h"

// Digital lines: framing, line code, clock, companding.

namespace Velquin::Pstn {

namespace {

using Physical = DigitalInterfacePhysicalConfig;

bool isT1( const Physical& in_physical ) {
    return in_physical.getMediaType() == Physical::MediaType::T1;
}

/// Frames of 24 timeslots (T1: ANSI T1.403) or of 32 (E1: ITU-T G.704).
bool isFramingOf( bool in_bT1, Physical::FramingType in_eFraming ) {
    const bool bE1 = in_eFraming == Physical::FramingType::CRC4 || in_eFraming == Physical::FramingType::NonCRC4;
    return bE1 != in_bT1;
}

/// HDB3 is the line code of 2,048 kbit/s, B8ZS that of 1,544 kbit/s (ITU-T G.703); AMI is on both.
bool isLineEncodingOf( bool in_bT1, Physical::LineEncodingType in_eEncoding ) {
    return in_eEncoding != ( in_bT1 ? Physical::LineEncodingType::HDB3 : Physical::LineEncodingType::B8ZS );
}

bool isClockedBy( const AdviceSubject::Span& in_span, Physical::ClockingMode in_eMode ) {
    return in_span.pPhysical && in_span.pPhysical->getClockingMode() == in_eMode;
}

AdvicePlace placeOfClocking( const AdviceSubject::Span& in_span ) {
    return placeOf( AdviceSubject::Physical<Physical>{ in_span.pPhysical, in_span.pInterface } )
        .below( "digital*", "clocking" );
}

} // namespace

void adviseLineOfOtherMedia( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const auto& physical : in_subject.vecDigitalPhysicals ) {
        const bool bT1 = isT1( *physical.pConfig );
        const bool bFraming = isFramingOf( bT1, physical.pConfig->getFraming() );
        if ( bFraming && isLineEncodingOf( bT1, physical.pConfig->getLineEncoding() ) )
            continue;
        const std::string strLine = bT1 ? "a T1 line takes " : "an E1 line takes ";
        if ( bFraming )
            inout_report.add( { placeOf( physical ).below( "digital*", "lineEncoding" ), "",
                                strLine + ( bT1 ? "B8ZS or AMI" : "HDB3 or AMI" ) } );
        else
            inout_report.add( { placeOf( physical ).below( "digital*", "framing" ), "",
                                strLine + ( bT1 ? "ESF, ESF_Japan or D4" : "CRC4 or NonCRC4" ) } );
    }
}

void adviseClockReference( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Board& board : in_subject.vecBoards ) {
        if ( !dynamic_cast<const TirvanaDigitalBoardConfig*>( board.pBoard ) || board.uFirst == board.uEnd )
            continue;
        const auto itFirst = in_subject.vecSpans.begin() + static_cast<std::ptrdiff_t>( board.uFirst );
        const auto itEnd = in_subject.vecSpans.begin() + static_cast<std::ptrdiff_t>( board.uEnd );
        const auto itReference = std::find_if( itFirst, itEnd, []( const AdviceSubject::Span& in_span ) {
            const auto* const pSpan = dynamic_cast<const TirvanaDigitalInterfaceConfig*>( in_span.pInterface );
            return pSpan && pSpan->isPrimaryClockReference();
        } );
        if ( itReference == itEnd ) {
            const bool bAllTerminal = std::all_of( itFirst, itEnd, []( const AdviceSubject::Span& in_span ) {
                return isClockedBy( in_span, Physical::ClockingMode::TERMINAL );
            } );
            if ( bAllTerminal )
                inout_report.add( { placeOf( board ).attribute( "primaryClockReference" ),
                                    "all spans of board " + std::to_string( board.pBoard->getId() ) +
                                        " are TERMINAL, and none gives it the clock",
                                    "name one in primaryClockReference",
                                    { { "TERMINAL here", placeOfClocking( *itFirst ) } } } );
        } else if ( isClockedBy( *itReference, Physical::ClockingMode::NETWORK ) ) {
            inout_report.add( { placeOf( board ).attribute( "primaryClockReference" ),
                                "",
                                nameOf( *itReference->pInterface ) +
                                    " is a NETWORK span, which has no clock to give; name a TERMINAL span, or none",
                                { { "NETWORK here", placeOfClocking( *itReference ) } } } );
        }
    }
}

void adviseCompanding( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const auto& physical : in_subject.vecDigitalPhysicals ) {
        const bool bT1 = isT1( *physical.pConfig );
        // ITU-T G.711: A-law on 2,048 kbit/s, mu-law on 1,544 kbit/s.
        const Media::Format::Type eUsual = bT1 ? Media::Format::PCMU : Media::Format::PCMA;
        const AudioConfig* const pAudio = physical.pConfig->getAudioConfig().get();
        if ( pAudio && pAudio->getMediaFormat().getType() != eUsual )
            inout_report.add(
                { placeOf( physical ).below( "audio", "defaultPcmLaw" ), "",
                  bT1 ? "a T1 line usually speaks mu-law (PCMU)" : "an E1 line usually speaks A-law (PCMA)" } );
    }
}

} // namespace Velquin::Pstn

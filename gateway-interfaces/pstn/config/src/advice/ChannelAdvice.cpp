#include <algorithm>
#include <bitset>
#include <optional>
#include <string>
#include <utility>

#include "advice/AdviceTable.h"

// Channels: which timeslots the ranges and the D-channels take.

namespace Velquin::Pstn {

namespace {

using MediaType = DigitalInterfacePhysicalConfig::MediaType;

/// The timeslots of a line: 1 to 31 beside the framing in timeslot 0 (E1: ITU-T G.704), 1 to 24 (T1: ANSI T1.403).
struct Line {
    const char* szName; ///< with its article
    unsigned int uLastChannel;
    unsigned int uDChannel; ///< where ISDN has its D-channel (ITU-T I.431)
};

const Line& lineOf( const DigitalInterfacePhysicalConfig& in_physical ) {
    static constexpr Line E1{ "an E1 line", 31, 16 };
    static constexpr Line T1{ "a T1 line", 24, 24 };
    return in_physical.getMediaType() == MediaType::T1 ? T1 : E1;
}

/// The timeslot of the span's D-channel, if it has one.
std::optional<unsigned int> getDChannel( const AdviceSubject::Span& in_span ) {
    if ( !in_span.pPhysical || !in_span.pPhysical->hasDChannel() )
        return {};
    return in_span.pPhysical->getDChannelConfig()->getDChannelIndex();
}

bool hasChannel( const AdviceSubject::Range& in_range, unsigned int in_uChannel ) {
    return in_range.pRange->getFirstChannel() <= in_uChannel && in_uChannel <= in_range.pRange->getLastChannel();
}

bool isSwapped( const AdviceSubject::Range& in_range ) {
    return in_range.pRange->getFirstChannel() > in_range.pRange->getLastChannel();
}

/// The ranges of the span that hold the channel.
std::vector<AdviceRelated> findRanges( const AdviceSubject::Span& in_span, unsigned int in_uChannel ) {
    std::vector<AdviceRelated> vecRelated;
    for ( const AdviceSubject::Range& range : in_span.ranges ) {
        if ( hasChannel( range, in_uChannel ) )
            vecRelated.push_back( { "also here", placeOf( range ) } );
    }
    return vecRelated;
}

AdvicePlace placeOfDChannel( const AdviceSubject::Physical<DigitalInterfacePhysicalConfig>& in_physical ) {
    return placeOf( in_physical ).below( "digital*/DChannel*", "channelIndex" );
}

using Channels = std::bitset<32>;

/// The channels from the first to the last; those beyond 31 are left out.
Channels makeChannels( unsigned int in_uFirst, unsigned int in_uLast ) {
    if ( in_uFirst > std::min( in_uLast, 31U ) )
        return {};
    return ( ~0ULL << in_uFirst ) & ( ~0ULL >> ( 63 - std::min( in_uLast, 31U ) ) );
}

/// "9", "9 to 15", "9 to 15 and 17"
std::string describe( const Channels& in_channels ) {
    std::vector<std::string> vecParts;
    for ( unsigned int uFirst = 1; uFirst < in_channels.size(); ++uFirst ) {
        if ( !in_channels[uFirst] )
            continue;
        unsigned int uLast = uFirst;
        while ( uLast + 1 < in_channels.size() && in_channels[uLast + 1] )
            ++uLast;
        vecParts.push_back( std::to_string( uFirst ) + ( uLast > uFirst ? " to " + std::to_string( uLast ) : "" ) );
        uFirst = uLast;
    }
    std::string strText;
    for ( std::size_t u = 0; u < vecParts.size(); ++u )
        strText += ( u == 0 ? "" : u + 1 == vecParts.size() ? " and " : ", " ) + vecParts[u];
    return strText;
}

} // namespace

void adviseChannelOutsideLine( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Span& span : in_subject.vecSpans ) {
        if ( !span.pPhysical )
            continue;
        const Line& line = lineOf( *span.pPhysical );
        for ( const AdviceSubject::Range& range : span.ranges ) {
            const bool bFirst =
                range.pRange->getFirstChannel() == 0 || range.pRange->getFirstChannel() > line.uLastChannel;
            // The load itself warns of a range whose ends are exchanged.
            if ( isSwapped( range ) || ( !bFirst && range.pRange->getLastChannel() <= line.uLastChannel ) )
                continue;
            inout_report.add( { placeOf( range ).attribute( bFirst ? "firstChannel" : "lastChannel" ),
                                "",
                                nameOf( *span.pInterface ) + " is " + line.szName + ", which has the channels 1 to " +
                                    std::to_string( line.uLastChannel ),
                                { { "declared here", placeOf( *span.pInterface ) } } } );
        }
    }
}

void adviseDChannelInRange( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Span& span : in_subject.vecSpans ) {
        const std::optional<unsigned int> uFound = getDChannel( span );
        // A D-channel elsewhere than usual is the mistake itself.
        if ( !uFound || *uFound != lineOf( *span.pPhysical ).uDChannel )
            continue;
        const unsigned int uDChannel = *uFound;
        const auto it = std::find_if( span.ranges.begin(), span.ranges.end(),
                                      [=]( const auto& in_range ) { return hasChannel( in_range, uDChannel ); } );
        // Where a range ends outside the line, that is the mistake.
        if ( it == span.ranges.end() || it->pRange->getFirstChannel() == 0 ||
             it->pRange->getLastChannel() > lineOf( *span.pPhysical ).uLastChannel )
            continue;
        std::vector<AdviceRelated> vecRelated = findRanges( span, uDChannel );
        vecRelated.erase( vecRelated.begin() );
        vecRelated.push_back( { "D-channel here", placeOfDChannel( { span.pPhysical, span.pInterface } ) } );
        const bool bLast = it->pRange->getLastChannel() == uDChannel;
        inout_report.add(
            { placeOf( *it ).attribute( bLast ? "lastChannel" : "firstChannel" ), "",
              "timeslot " + std::to_string( uDChannel ) + " of " + nameOf( *span.pInterface ) + " is its D-channel: " +
                  ( bLast ? "end the range at " + std::to_string( uDChannel - 1 ) : "split the range around it" ),
              std::move( vecRelated ) } );
    }
}

void adviseDChannelTimeslot( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const auto& physical : in_subject.vecDigitalPhysicals ) {
        const Line& line = lineOf( *physical.pConfig );
        if ( !physical.pConfig->hasDChannel() ||
             physical.pConfig->getDChannelConfig()->getDChannelIndex() == line.uDChannel )
            continue;
        inout_report.add( { placeOfDChannel( physical ), "",
                            std::string( "the D-channel of " ) + line.szName + " is in timeslot " +
                                std::to_string( line.uDChannel ) } );
    }
}

void adviseGroupEmpty( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    if ( in_subject.hCallControl.isNull() )
        return;
    for ( const auto& [strId, hGroup] : in_subject.hCallControl->getChannelGroupsConfig() ) {
        if ( hGroup->getBChannelRangeConfig().empty() && !inout_report.getDocument().mayBeFilled( strId ) )
            inout_report.add( { placeOf( *hGroup ).attribute( "ID" ), "",
                                "no channel is in this group; name it in a BChannelRange or interfaceRef, or remove "
                                "it" } );
    }
}

void adviseChannelUnused( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Span& span : in_subject.vecSpans ) {
        // A span without ranges, and ranges with exchanged ends, have findings of their own, which explain the rest.
        if ( !span.pPhysical || span.ranges.empty() ||
             std::any_of( span.ranges.begin(), span.ranges.end(), &isSwapped ) )
            continue;
        Channels unused = makeChannels( 1, lineOf( *span.pPhysical ).uLastChannel );
        if ( const std::optional<unsigned int> uDChannel = getDChannel( span ) ) {
            // Where the D-channel is elsewhere than usual, that is the mistake.
            unused.reset( lineOf( *span.pPhysical ).uDChannel );
            unused &= ~makeChannels( *uDChannel, *uDChannel );
        }
        for ( const AdviceSubject::Range& range : span.ranges )
            unused &= ~makeChannels( range.pRange->getFirstChannel(), range.pRange->getLastChannel() );
        if ( unused.none() || inout_report.getDocument().countRanges( span.pInterface->getBoardConfig()->getId(),
                                                                      span.pInterface->getId() ) != span.ranges.size() )
            continue;
        const bool bOne = unused.count() == 1;
        inout_report.add( { placeOf( span.uses.front(), *span.pInterface ),
                            std::string( bOne ? "channel " : "channels " ) + describe( unused ) + " of " +
                                nameOf( *span.pInterface ) + ( bOne ? " is" : " are" ) + " in no channel group",
                            bOne ? "add a BChannelRange if it is to carry calls"
                                 : "add a BChannelRange if they are to carry calls" } );
    }
}

} // namespace Velquin::Pstn

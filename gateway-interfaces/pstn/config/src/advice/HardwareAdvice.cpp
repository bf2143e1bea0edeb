#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "advice/AdviceTable.h"
#include "hardware/TirvanaDigitalVirtualBoardConfig.h"
#include "hardware/TirvanaDigitalVirtualInterfaceConfig.h"

// Boards, virtual links, and what stands twice.

namespace Velquin::Pstn {

namespace {

using VirtualSpan = TirvanaDigitalVirtualInterfaceConfig;
using SpanId = std::pair<unsigned int, unsigned int>; ///< board and span
using VirtualSpans = std::map<SpanId, const VirtualSpan*>;

SpanId idOf( const VirtualSpan& in_span ) {
    return { in_span.getBoardConfig()->getId(), in_span.getId() };
}

SpanId peerOf( const VirtualSpan& in_span ) {
    return { in_span.getPeerVirtualBoardId(), in_span.getPeerVirtualInterfaceId() };
}

const VirtualSpan* findPeer( const VirtualSpans& in_mapSpans, const VirtualSpan& in_span ) {
    const auto it = in_mapSpans.find( peerOf( in_span ) );
    return it == in_mapSpans.end() ? nullptr : it->second;
}

std::string nameOfSpan( const SpanId& in_id ) {
    return "span " + std::to_string( in_id.second ) + " of board " + std::to_string( in_id.first );
}

/// Reports a span whose other end is no virtual span.
void adviseMissingPeer( const AdviceSubject& in_subject, const VirtualSpan& in_span, AdviceReport& inout_report ) {
    const SpanId peer = peerOf( in_span );
    const auto& mapBoards = in_subject.config.getDigitalBoardsConfig();
    const auto itBoard = mapBoards.find( peer.first );
    const bool bVirtual =
        itBoard != mapBoards.end() && dynamic_cast<const TirvanaDigitalVirtualBoardConfig*>( itBoard->second.get() );
    // What stands in the file but could not be read has a finding of its own.
    if ( ( bVirtual || itBoard == mapBoards.end() ) && inout_report.getDocument().contains( ModelLocator::Key(
                                                           ModelLocator::DIGITAL_BOARD, peer.first, peer.second ) ) )
        return;
    inout_report.add( { placeOf( in_span ).attribute( bVirtual ? "peerVirtualInterfaceID" : "peerVirtualBoardID" ), "",
                        "there is no virtual " + nameOfSpan( peer ) + "; name the other end of the link" } );
}

/// Reports an interface whose display name another one of its board has.
template <class TLine>
void adviseNames( const std::vector<TLine>& in_vecLines, const AdviceSubject::Board& in_board,
                  AdviceReport& inout_report ) {
    std::map<std::string_view, const InterfaceConfig*> mapNames;
    for ( std::size_t u = in_board.uFirst; u < in_board.uEnd; ++u ) {
        const InterfaceConfig& line = *in_vecLines[u].pInterface;
        if ( *line.getDisplayName() == '\0' )
            continue;
        const auto [it, bNew] = mapNames.emplace( line.getDisplayName(), &line );
        if ( !bNew )
            inout_report.add( { placeOf( line ).attribute( "displayName" ),
                                "",
                                nameOf( *it->second ) + " has this name already",
                                { { "first here", placeOf( *it->second ).attribute( "displayName" ) } },
                                true } );
    }
}

/// Reports a physical configuration whose identifier another one of its kind has.
template <class TPhysical>
void adviseIds( const std::vector<TPhysical>& in_vecPhysicals, AdviceReport& inout_report ) {
    std::map<unsigned int, const TPhysical*> mapIds;
    for ( const TPhysical& physical : in_vecPhysicals ) {
        const auto [it, bNew] = mapIds.emplace( physical.pConfig->getId(), &physical );
        if ( !bNew )
            inout_report.add( { placeOf( physical ).attribute( "ID" ),
                                "",
                                "another physical configuration has this ID; give each its own",
                                { { "also here", placeOf( *it->second ).attribute( "ID" ) } } } );
    }
}

} // namespace

void advisePeer( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    VirtualSpans mapSpans;
    for ( const AdviceSubject::Span& span : in_subject.vecSpans ) {
        if ( const auto* const pSpan = dynamic_cast<const VirtualSpan*>( span.pInterface ) )
            mapSpans.emplace_hint( mapSpans.end(), idOf( *pSpan ), pSpan );
    }
    const auto isLinkedBack = [&]( const VirtualSpan& in_span ) {
        const VirtualSpan* const pPeer = findPeer( mapSpans, in_span );
        return pPeer && pPeer != &in_span && findPeer( mapSpans, *pPeer ) == &in_span;
    };
    std::set<const VirtualSpan*> setReported;
    for ( const auto& [id, pSpan] : mapSpans ) {
        const VirtualSpan* const pPeer = findPeer( mapSpans, *pSpan );
        if ( !pPeer ) {
            adviseMissingPeer( in_subject, *pSpan, inout_report );
        } else if ( pPeer == pSpan ) {
            inout_report.add( { placeOf( *pSpan ).attribute( "peerVirtualBoardID" ), "",
                                nameOfSpan( id ) + " is linked with itself; name the other end of the link" } );
        } else if ( !isLinkedBack( *pSpan ) ) {
            // Where the other end has a wrong link, that one's finding explains this span, too.
            const VirtualSpan* const pNext = findPeer( mapSpans, *pPeer );
            const bool bExplained = !isLinkedBack( *pPeer ) && ( !pNext || pNext == pPeer || isLinkedBack( *pNext ) ||
                                                                 setReported.contains( pPeer ) );
            if ( bExplained )
                continue;
            setReported.insert( pSpan );
            inout_report.add( { placeOf( *pSpan ).attribute( "peerVirtualBoardID" ),
                                "",
                                nameOfSpan( idOf( *pPeer ) ) + " is linked with " + nameOfSpan( peerOf( *pPeer ) ) +
                                    "; make the two ends of a link name each other",
                                { { "other end here", placeOf( *pPeer ).attribute( "peerVirtualBoardID" ) } } } );
        }
    }
}

void adviseUsedTwice( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    std::map<std::pair<unsigned long long, unsigned long long>, AdvicePlace> mapSlots;
    for ( const AdviceSubject::Board& board : in_subject.vecBoards ) {
        if ( board.bAnalog )
            adviseNames( in_subject.vecPorts, board, inout_report );
        else
            adviseNames( in_subject.vecSpans, board, inout_report );
        // A virtual board is in no slot.
        if ( !board.pBoard->getPCIBus().isSet() || !board.pBoard->getPCISlot().isSet() ||
             dynamic_cast<const TirvanaDigitalVirtualBoardConfig*>( board.pBoard ) )
            continue;
        const AdvicePlace place = placeOf( board ).attribute( "pciSlot" );
        const auto [it, bNew] =
            mapSlots.emplace( std::pair( board.pBoard->getPCIBus().get(), board.pBoard->getPCISlot().get() ), place );
        if ( !bNew )
            inout_report.add( { place,
                                "",
                                "another board is in this slot of bus " +
                                    std::to_string( board.pBoard->getPCIBus().get() ) +
                                    "; give each board the slot where it is",
                                { { "also here", it->second } } } );
    }
    adviseIds( in_subject.vecDigitalPhysicals, inout_report );
    adviseIds( in_subject.vecAnalogPhysicals, inout_report );
}

} // namespace Velquin::Pstn

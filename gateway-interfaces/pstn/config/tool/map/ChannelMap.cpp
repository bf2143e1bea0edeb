#include "ChannelMap.h"

#include <algorithm>

#include "../Printable.h"

using namespace Velquin::Pstn;

namespace {

using Media = DigitalInterfacePhysicalConfig::MediaType;

constexpr unsigned int E1_LAST = 31;
constexpr unsigned int T1_LAST = 24;

std::string count( std::size_t in_uCount, const std::string& in_strWhat ) {
    return std::to_string( in_uCount ) + " " + in_strWhat + ( in_uCount == 1 ? "" : "s" );
}

std::string describeBoard( const char* in_szKind, const BoardConfig& in_board ) {
    const std::string strName = in_board.getDisplayName();
    return std::string( in_szKind ) + " board " + std::to_string( in_board.getId() ) +
           ( strName.empty() ? "" : ", " + strName );
}

std::string describeDChannel( const IsdnNfasConfig& in_group, const IsdnNfasGroupMemberConfig& in_member ) {
    const bool bPrimary = in_member.getDChannelMode() == IsdnNfasGroupMemberConfig::DChannelMode::PRIMARY;
    return ( bPrimary ? "primary" : "backup" ) + std::string( " D-channel of NFAS group " ) +
           std::to_string( in_group.getId() );
}

} // namespace

ChannelMap::Look ChannelMap::Run::getLook() const {
    if ( eTimeslot != Timeslot::BEARER && !vecGroups.empty() )
        return Look::CONFLICT;
    if ( eTimeslot != Timeslot::BEARER )
        return eTimeslot == Timeslot::FRAMING ? Look::FRAMING : Look::D_CHANNEL;
    return vecGroups.empty() ? Look::FREE : vecGroups.size() == 1 ? Look::GROUP : Look::SHARED;
}

std::vector<unsigned int> ChannelMap::Board::getTicks() const {
    unsigned int uFirst = E1_LAST;
    unsigned int uLast = 0;
    for ( const Line& line : vecLines ) {
        uFirst = std::min( uFirst, line.vecRuns.front().uFirst );
        uLast = std::max( uLast, line.vecRuns.back().uLast );
    }
    if ( uLast <= 1 )
        return {};
    std::vector<unsigned int> vecTicks{ uFirst };
    for ( unsigned int u = 8; u < uLast; u += 8 )
        vecTicks.push_back( u );
    vecTicks.push_back( uLast );
    return vecTicks;
}

ChannelMap::ChannelMap( const Config& in_config ) {
    const auto hCallControl = in_config.getCallControlConfig();
    const Uses uses = hCallControl.isNull() ? Uses() : addGroups( *hCallControl );
    const auto addBoard = [&]( std::string in_strTitle, const auto& in_vecInterfaces ) {
        Board& board = m_vecBoards.emplace_back();
        board.strTitle = std::move( in_strTitle );
        for ( const auto& hInterface : in_vecInterfaces )
            board.vecLines.push_back( makeLine( *hInterface, uses ) );
    };
    for ( const auto& [uId, hBoard] : in_config.getDigitalBoardsConfig() ) {
        const bool bVirtual = dynamic_cast<const TirvanaDigitalVirtualBoardConfig*>( hBoard.get() );
        std::vector<Velquin::TSHandle<DigitalInterfaceConfig>> vecSpans;
        hBoard->getDigitalInterfacesConfig( vecSpans );
        addBoard( describeBoard( bVirtual ? "Virtual" : "Digital", *hBoard ), vecSpans );
    }
    for ( const auto& [uId, hBoard] : in_config.getAnalogBoardsConfig() ) {
        std::vector<Velquin::TSHandle<AnalogInterfaceConfig>> vecPorts;
        hBoard->getAnalogInterfacesConfig( vecPorts );
        addBoard( describeBoard( "Analog", *hBoard ), vecPorts );
    }
}

ChannelMap::Uses ChannelMap::addGroups( const CallControlConfig& in_callControl ) {
    Uses uses;
    for ( const auto& [strId, hGroup] : in_callControl.getChannelGroupsConfig() ) {
        Group& group = m_vecGroups.emplace_back();
        group.strId = printable( strId );
        group.strDirection = Keywords::CHANNEL_DIRECTION.keywordOf( hGroup->getDirection() );
        if ( hGroup->getDirection() != Velquin::PSTNChannel::IN )
            group.strHunting = Keywords::HUNTING_SCHEME.keywordOf( hGroup->getOutboundHuntingScheme() );
        for ( const auto& hRange : hGroup->getBChannelRangeConfig() )
            uses.mapRanges[hRange->getInterfaceConfig().get()].push_back(
                { hRange->getFirstChannel(), hRange->getLastChannel(), m_vecGroups.size() - 1 } );
    }
    if ( in_callControl.getIsdnConfig().isNull() )
        return uses;
    for ( const auto& [uId, hNfas] : in_callControl.getIsdnConfig()->getNfasConfigs() ) {
        for ( const auto& [strInterface, hMember] : hNfas->getMemberInterfaces() )
            uses.mapDChannels[hMember->getInterfaceConfig().get()] = describeDChannel( *hNfas, *hMember );
    }
    return uses;
}

ChannelMap::Line ChannelMap::makeLine( const InterfaceConfig& in_interface, const Uses& in_uses ) {
    Line line;
    line.strUniqueId = in_interface.getUniqueId( true );
    line.uId = in_interface.getId();
    line.strName = in_interface.getDisplayName();
    const auto itDChannel = in_uses.mapDChannels.find( &in_interface );
    line.strDChannel = itDChannel == in_uses.mapDChannels.end() ? "D-channel" : itDChannel->second;
    const auto itRanges = in_uses.mapRanges.find( &in_interface );
    const std::vector<Range> vecRanges = itRanges == in_uses.mapRanges.end() ? std::vector<Range>() : itRanges->second;

    if ( const auto* const pPort = dynamic_cast<const AnalogInterfaceConfig*>( &in_interface ) ) {
        line.strMedia = Keywords::ANALOG_MEDIA_TYPE.keywordOf( pPort->getMediaType() );
        fill( line, 1, 1, std::nullopt, vecRanges );
        return line;
    }
    // Each interface of a loaded model has its physical configuration.
    const auto& physicalConfig = *dynamic_cast<const DigitalInterfaceConfig&>( in_interface ).getPhysicalConfig();
    const bool bE1 = physicalConfig.getMediaType() == Media::E1;
    std::optional<unsigned int> uDChannel;
    if ( physicalConfig.hasDChannel() )
        uDChannel = physicalConfig.getDChannelConfig()->getDChannelIndex();
    line.strMedia = bE1 ? "E1" : "T1";
    fill( line, bE1 ? 0 : 1, bE1 ? E1_LAST : T1_LAST, uDChannel, vecRanges );
    return line;
}

void ChannelMap::fill( Line& inout_line, unsigned int in_uFirst, unsigned int in_uLast,
                       std::optional<unsigned int> in_uDChannel, const std::vector<Range>& in_vecRanges ) {
    for ( unsigned int u = in_uFirst; u <= in_uLast; ++u ) {
        Run run{ u, u, u == in_uDChannel ? Timeslot::D_CHANNEL : u == 0 ? Timeslot::FRAMING : Timeslot::BEARER, {} };
        for ( const Range& range : in_vecRanges ) {
            if ( range.uFirst <= u && u <= range.uLast ) {
                run.vecGroups.push_back( range.uGroup );
                if ( run.eTimeslot == Timeslot::BEARER )
                    ++m_vecGroups[range.uGroup].ullChannels;
            }
        }
        auto& vecRuns = inout_line.vecRuns;
        if ( !vecRuns.empty() && vecRuns.back().eTimeslot == run.eTimeslot &&
             vecRuns.back().vecGroups == run.vecGroups )
            vecRuns.back().uLast = u;
        else
            vecRuns.push_back( std::move( run ) );
    }
    const auto addStray = [&]( unsigned int in_uFrom, unsigned int in_uTo, std::optional<std::size_t> in_uGroup ) {
        if ( in_uFrom > in_uTo )
            inout_line.vecStray.push_back( { in_uFrom, in_uTo, in_uGroup } );
        if ( in_uFrom < in_uFirst && in_uFrom <= in_uTo )
            inout_line.vecStray.push_back( { in_uFrom, std::min( in_uTo, in_uFirst - 1 ), in_uGroup } );
        if ( in_uTo > in_uLast && in_uFrom <= in_uTo )
            inout_line.vecStray.push_back( { std::max( in_uFrom, in_uLast + 1 ), in_uTo, in_uGroup } );
    };
    for ( const Range& range : in_vecRanges )
        addStray( range.uFirst, range.uLast, range.uGroup );
    if ( in_uDChannel )
        addStray( *in_uDChannel, *in_uDChannel, std::nullopt );
}

std::string ChannelMap::getSummary() const {
    std::size_t uLines = 0;
    for ( const Board& board : m_vecBoards )
        uLines += board.vecLines.size();
    return count( m_vecBoards.size(), "board" ) + ", " + count( uLines, "line" ) + ", " +
           count( m_vecGroups.size(), "channel group" );
}

bool ChannelMap::has( Look in_eLook ) const {
    return std::any_of( m_vecBoards.begin(), m_vecBoards.end(), [in_eLook]( const Board& in_board ) {
        return std::any_of( in_board.vecLines.begin(), in_board.vecLines.end(), [in_eLook]( const Line& in_line ) {
            return std::any_of( in_line.vecRuns.begin(), in_line.vecRuns.end(),
                                [in_eLook]( const Run& in_run ) { return in_run.getLook() == in_eLook; } );
        } );
    } );
}

std::string ChannelMap::describeChannels( unsigned int in_uFirst, unsigned int in_uLast ) {
    return std::to_string( in_uFirst ) + ( in_uFirst == in_uLast ? "" : " to " + std::to_string( in_uLast ) );
}

std::string ChannelMap::describe( const Line& in_line, const Run& in_run ) const {
    std::string strUse;
    if ( in_run.eTimeslot != Timeslot::BEARER )
        strUse = in_run.eTimeslot == Timeslot::FRAMING ? "framing" : in_line.strDChannel;
    if ( !in_run.vecGroups.empty() )
        strUse += ( strUse.empty() ? "" : ", but also in " ) + listGroups( in_run.vecGroups );
    return describeChannels( in_run.uFirst, in_run.uLast ) + ": " + ( strUse.empty() ? "free" : strUse );
}

std::string ChannelMap::describe( const Stray& in_stray ) const {
    const std::string strWhat = describeChannels( in_stray.uFirst, in_stray.uLast ) +
                                ( in_stray.uGroup ? " of " + m_vecGroups[*in_stray.uGroup].strId : ", D-channel" );
    return strWhat + ( in_stray.uFirst > in_stray.uLast ? ": no channels, the first is behind the last"
                                                        : ": outside of the line" );
}

std::string ChannelMap::listGroups( const std::vector<std::size_t>& in_vecGroups ) const {
    std::string strList;
    for ( const std::size_t uGroup : in_vecGroups )
        strList += ( strList.empty() ? "" : " and " ) + m_vecGroups[uGroup].strId;
    return strList;
}

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "../Printable.h"
#include "MapRenderings.h"
#include "MapStyle.h"

using Look = ChannelMap::Look;

namespace {

constexpr std::size_t NAME_WIDTH = 26;
constexpr std::size_t CELLS_COLUMN = 38;
constexpr std::size_t PORT_GROUP_WIDTH = 36; ///< of a group's name behind the only cell of a port

class TextMap {
public:
    TextMap( const ChannelMap& in_map, bool in_bColour ) : m_map( in_map ), m_bColour( in_bColour ) {}

    std::string render( const std::string& in_strHeading ) {
        m_strText = printable( in_strHeading ) + ": " + m_map.getSummary() + "\n";
        for ( const ChannelMap::Board& board : m_map.getBoards() ) {
            std::string strTitle = shorten( board.strTitle, CELLS_COLUMN - 2 );
            for ( const unsigned int uTick : board.getTicks() ) // the last one ends where its cell does
                strTitle = fmt::format( "{:{}}{}", strTitle, CELLS_COLUMN + uTick - ( uTick == 31 ? 1 : 0 ), uTick );
            m_strText += "\n" + strTitle + "\n";
            for ( const ChannelMap::Line& line : board.vecLines )
                addLine( line );
        }
        addLegend();
        return std::move( m_strText );
    }

private:
    void addLine( const ChannelMap::Line& in_line ) {
        m_strText += fmt::format( "{:>5} {:{}} {:4} ", in_line.uId, shorten( in_line.strName, NAME_WIDTH ), NAME_WIDTH,
                                  in_line.strMedia );
        m_strText += std::string( in_line.vecRuns.front().uFirst, ' ' ); // timeslots stand below each other
        std::string strNotes;
        const auto addNote = [&]( const std::string& in_strNote ) {
            strNotes += fmt::format( "{:6}{}\n", "", in_strNote );
        };
        for ( const ChannelMap::Run& run : in_line.vecRuns ) {
            const bool bLast = &run == &in_line.vecRuns.back();
            if ( addRun( run, bLast ) )
                addNote( m_map.describe( in_line, run ) );
        }
        const ChannelMap::Run& last = in_line.vecRuns.back();
        if ( !in_line.isSpan() && last.getLook() == Look::GROUP )
            m_strText += " " + shorten( m_map.getGroups()[last.vecGroups.front()].strId, PORT_GROUP_WIDTH );
        for ( const ChannelMap::Stray& stray : in_line.vecStray )
            addNote( "! " + m_map.describe( stray ) );
        m_strText += "\n" + strNotes;
    }

    /// @return whether the run says too little by itself
    bool addRun( const ChannelMap::Run& in_run, bool in_bLast ) {
        const Look eLook = in_run.getLook();
        if ( eLook != Look::GROUP ) {
            m_strText += repeat( getGlyph( eLook ), in_run.getLength() );
            return eLook == Look::SHARED || eLook == Look::CONFLICT;
        }
        const std::string strCode = getCode( in_run.vecGroups.front() );
        const bool bFits = in_bLast || strCode.size() <= in_run.getLength();
        addGroup( in_run.vecGroups.front(), bFits ? strCode : repeat( "+", in_run.getLength() ), in_run.getLength() );
        return !bFits;
    }

    void addGroup( std::size_t in_uGroup, const std::string& in_strCode, std::size_t in_uCells ) {
        static constexpr std::array<const char*, GROUP_PATTERNS> s_aFills{ "█", "▓", "▒" };
        const std::size_t uFill = in_uCells > in_strCode.size() ? in_uCells - in_strCode.size() : 0;
        if ( !m_bColour ) {
            m_strText += in_strCode + repeat( s_aFills[in_uGroup % GROUP_PATTERNS], uFill );
            return;
        }
        const GroupColour& colour = GROUP_COLOURS[getColour( in_uGroup )];
        m_strText += fmt::format( "\x1b[{};48;5;{}m{}\x1b[0m\x1b[38;5;{}m{}\x1b[0m", colour.szInk[1] == '0' ? 30 : 97,
                                  colour.nTerminal, in_strCode, colour.nTerminal,
                                  repeat( s_aFills[getPattern( in_uGroup )], uFill ) );
    }

    void addLegend() {
        if ( !m_map.getGroups().empty() )
            m_strText += "\n        channels  direction  hunting         group\n";
        for ( std::size_t u = 0; u < m_map.getGroups().size(); ++u ) {
            const ChannelMap::Group& group = m_map.getGroups()[u];
            const std::string strCode = getCode( u );
            addGroup( u, strCode, strCode.size() + 2 );
            m_strText +=
                fmt::format( "{:{}}{:>8}  {:9}  {:14}  {}\n", "", 6 - std::min<std::size_t>( strCode.size(), 5 ),
                             group.ullChannels, group.strDirection, group.strHunting, group.strId );
        }
        const char* szBefore = "\n";
        for ( const Look eLook : LOOKS_OF_LEGEND ) {
            if ( !m_map.has( eLook ) )
                continue;
            m_strText += szBefore + fmt::format( "{} {}", getGlyph( eLook ), getMeaning( eLook ) );
            szBefore = eLook == Look::SHARED ? "\n" : "   "; // the last one would not fit into the line
        }
        m_strText += "\n";
    }

    static const char* getGlyph( Look in_eLook ) {
        switch ( in_eLook ) {
        case Look::FRAMING:
            return "░";
        case Look::D_CHANNEL:
            return "D";
        case Look::SHARED:
            return "×";
        case Look::CONFLICT:
            return "!";
        case Look::FREE:
        case Look::GROUP:
            break;
        }
        return "·";
    }

    static std::string repeat( const std::string& in_strGlyph, std::size_t in_uTimes ) {
        std::string strAll;
        for ( std::size_t u = 0; u < in_uTimes; ++u )
            strAll += in_strGlyph;
        return strAll;
    }

    const ChannelMap& m_map;
    const bool m_bColour;
    std::string m_strText;
};

} // namespace

std::string renderText( const ChannelMap& in_map, const std::string& in_strHeading, bool in_bColour ) {
    return TextMap( in_map, in_bColour ).render( in_strHeading );
}

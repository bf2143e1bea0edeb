#include <algorithm>
#include <set>
#include <utility>

#include <fmt/format.h>

#include "../Printable.h"
#include "MapRenderings.h"
#include "MapStyle.h"

using Look = ChannelMap::Look;

namespace {

// Units of the picture
constexpr std::size_t MARGIN = 16;
constexpr std::size_t CELLS_X = 232;
constexpr std::size_t CELL = 18;
constexpr std::size_t ROW = 24;
constexpr std::size_t WIDTH = CELLS_X + 32 * CELL + MARGIN;
constexpr double CHARACTER = 6.6; ///< width of a usual character

/// Colours of a viewer that knows no style stand in the attributes; they are those of a light background.
constexpr const char* STYLE = R"(
text{font:12px system-ui,sans-serif;fill:#1b1b1b}.h{font-size:15px;font-weight:600}.b{font-weight:600}.q{fill:#666}
svg{background:#fff}.bg{fill:#fff}.n{fill:#f1f1f1}.f{fill:#b9b9b9}.d{fill:#1b1b1b}.x{fill:#fff;stroke:#b00020;stroke-width:2}.w{fill:#b00020}
text.dt{fill:#fff;font-weight:600}text.xt{fill:#b00020;font-weight:700}text.k{fill:#000}
.k,.k1,.k2,.dt,.xt{pointer-events:none}text.k1{fill:#fff}text.k2{fill:#000;stroke:#fff;stroke-width:3px;paint-order:stroke}
@media(prefers-color-scheme:dark){text{fill:#e8e8e8}.q{fill:#aaa}svg{background:#16181c}.bg{fill:#16181c}.n{fill:#2a2d33}.f{fill:#6a6e76}
.d{fill:#f2f2f2}text.dt{fill:#000}.x{fill:#16181c;stroke:#ff6b7d}.w,text.xt{fill:#ff6b7d}}
)";

class SvgMap {
public:
    explicit SvgMap( const ChannelMap& in_map ) : m_map( in_map ) {}

    std::string render( const std::string& in_strHeading ) {
        const std::string strHeading = escapeMarkup( printable( in_strHeading ) );
        m_uY = 2 * MARGIN;
        addText( MARGIN, "h", "Channel map of " + strHeading );
        addText( MARGIN, "q", m_map.getSummary(), ROW - 4 );
        for ( const ChannelMap::Board& board : m_map.getBoards() )
            addBoard( board );
        addLegend();
        m_uY += MARGIN;
        return fmt::format( R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {0} {1}" width="{0}" height="{1}")"
                            R"( role="img"><title>Channel map of {2}</title><style>{3}</style><defs>{4}</defs>)"
                            R"(<rect class="bg" fill="#fff" width="{0}" height="{1}"/>{5}</svg>)"
                            "\n",
                            WIDTH, m_uY, strHeading, STYLE, getPatterns(), m_strBody );
    }

private:
    void addText( std::size_t in_uX, const char* in_szClass, const std::string& in_strMarkup,
                  std::size_t in_uDown = 0 ) {
        m_uY += in_uDown;
        m_strBody +=
            fmt::format( "\n<text x=\"{}\" y=\"{}\" class=\"{}\">{}</text>", in_uX, m_uY, in_szClass, in_strMarkup );
    }

    void addBoard( const ChannelMap::Board& in_board ) {
        addText( MARGIN, "b", escapeMarkup( shorten( in_board.strTitle, 32 ) ), ROW + 12 );
        for ( const unsigned int uTick : in_board.getTicks() )
            m_strBody += fmt::format( R"(<text x="{}" y="{}" class="q" text-anchor="middle">{}</text>)",
                                      CELLS_X + uTick * CELL + CELL / 2, m_uY, uTick );
        m_uY += 8;
        for ( const ChannelMap::Line& line : in_board.vecLines )
            addLine( line );
    }

    void addLine( const ChannelMap::Line& in_line ) {
        m_strBody += fmt::format( R"(<g><title>{}, {}</title>)", escapeMarkup( in_line.strName ), in_line.strUniqueId );
        addText( MARGIN, "", fmt::format( "{} {}", in_line.uId, escapeMarkup( shorten( in_line.strName, 24 ) ) ), 13 );
        m_strBody += "</g>";
        addText( CELLS_X - 36, "q", in_line.strMedia );
        for ( const ChannelMap::Run& run : in_line.vecRuns ) {
            m_strBody += fmt::format( "\n<g><title>{}</title>", escapeMarkup( m_map.describe( in_line, run ) ) );
            addSwatch( run, getX( run ), run.getLength() * CELL );
            m_strBody += "</g>";
        }
        m_strBody +=
            fmt::format( R"_(<rect x="{}" y="{}" width="{}" height="{}" fill="url(#c)" pointer-events="none"/>)_",
                         getX( in_line.vecRuns.front() ), m_uY - 13,
                         getX( in_line.vecRuns.back() ) + in_line.vecRuns.back().getLength() * CELL -
                             getX( in_line.vecRuns.front() ),
                         CELL );
        for ( const ChannelMap::Run& run : in_line.vecRuns )
            addLabel( run, in_line.isSpan() );
        for ( const ChannelMap::Stray& stray : in_line.vecStray )
            addText( CELLS_X, "w", "! " + escapeMarkup( shorten( m_map.describe( stray ), 84 ) ), ROW - 4 );
        m_uY += ROW - 13;
    }

    static std::size_t getX( const ChannelMap::Run& in_run ) { return CELLS_X + in_run.uFirst * CELL; }

    void addLabel( const ChannelMap::Run& in_run, bool in_bSpan ) {
        const std::size_t uWidth = in_run.getLength() * CELL;
        const auto uRoom = static_cast<std::size_t>( static_cast<double>( uWidth - 4 ) / CHARACTER );
        const std::string strMark = getMark( in_run );
        const std::string strLabel = getLabel( m_map, in_run );
        if ( uRoom < strMark.size() )
            addInk( in_run, getX( in_run ), uWidth,
                    in_run.getLook() == Look::SHARED ? "×" : shorten( strMark, uRoom ) );
        else
            addInk( in_run, getX( in_run ), uWidth, uRoom < strMark.size() + 4 ? strMark : shorten( strLabel, uRoom ) );
        if ( !in_bSpan && strLabel.size() > strMark.size() ) // a port's name has room behind its only cell
            addText( getX( in_run ) + CELL + 8, "",
                     escapeMarkup( shorten( strLabel.substr( strMark.size() + 1 ), 75 ) ) );
    }

    void addSwatch( const ChannelMap::Run& in_run, std::size_t in_uX, std::size_t in_uWidth ) {
        const auto addRect = [&]( const std::string& in_strPaint ) {
            m_strBody += fmt::format( R"(<rect x="{}" y="{}" width="{}" height="{}" {}/>)", in_uX, m_uY - 13, in_uWidth,
                                      CELL, in_strPaint );
        };
        switch ( in_run.getLook() ) {
        case Look::FREE:
            return addRect( R"(class="n" fill="#f1f1f1")" );
        case Look::FRAMING:
            return addRect( R"(class="f" fill="#b9b9b9")" );
        case Look::D_CHANNEL:
            return addRect( R"(class="d" fill="#1b1b1b")" );
        case Look::CONFLICT:
            return addRect( R"(class="x" fill="#fff" stroke="#b00020")" );
        case Look::SHARED: {
            const std::pair pair( getColour( in_run.vecGroups[0] ), getColour( in_run.vecGroups[1] ) );
            m_setPairs.insert( pair );
            return addRect( fmt::format( R"_(fill="url(#s{}{})")_", pair.first, pair.second ) );
        }
        case Look::GROUP:
            break;
        }
        const std::size_t uGroup = in_run.vecGroups.front();
        addRect( fmt::format( R"(fill="{}")", GROUP_COLOURS[getColour( uGroup )].szFill ) );
        if ( getPattern( uGroup ) > 0 )
            addRect( fmt::format( R"_(fill="url(#p{})")_", getPattern( uGroup ) ) );
    }

    void addInk( const ChannelMap::Run& in_run, std::size_t in_uX, std::size_t in_uWidth,
                 const std::string& in_strLabel ) {
        if ( in_strLabel.empty() )
            return;
        const Look eLook = in_run.getLook();
        const char* szClass = eLook == Look::D_CHANNEL ? "dt" : eLook == Look::CONFLICT ? "xt" : "k";
        if ( eLook == Look::SHARED || ( eLook == Look::GROUP && getPattern( in_run.vecGroups.front() ) > 0 ) )
            szClass = "k2";
        else if ( eLook == Look::GROUP && GROUP_COLOURS[getColour( in_run.vecGroups.front() )].szInk[1] == 'f' )
            szClass = "k1";
        const bool bCentre = in_uWidth <= 2 * CELL;
        m_strBody +=
            fmt::format( R"(<text x="{}" y="{}" class="{}"{}{}>{}</text>)", bCentre ? in_uX + in_uWidth / 2 : in_uX + 5,
                         m_uY, szClass, eLook == Look::D_CHANNEL ? " fill=\"#fff\"" : "",
                         bCentre ? " text-anchor=\"middle\"" : "", escapeMarkup( in_strLabel ) );
    }

    void addLegend() {
        constexpr std::size_t DIRECTION_X = CELLS_X + 8 * CELL;
        constexpr std::size_t HUNTING_X = CELLS_X + 12 * CELL;
        constexpr std::size_t CHANNELS_X = CELLS_X + 24 * CELL;
        if ( !m_map.getGroups().empty() ) {
            addText( MARGIN, "b", "Channel groups", 2 * ROW );
            addText( DIRECTION_X, "q", "direction" );
            addText( HUNTING_X, "q", "hunting" );
            addText( CHANNELS_X, "q", "channels" );
        }
        m_uY += 8;
        for ( std::size_t u = 0; u < m_map.getGroups().size(); ++u ) {
            const ChannelMap::Group& group = m_map.getGroups()[u];
            m_uY += 13;
            addSample( { 1, 2, ChannelMap::Timeslot::BEARER, { u } } );
            addText( MARGIN + 2 * CELL + 10, "", escapeMarkup( shorten( group.strId, 46 ) ) );
            addText( DIRECTION_X, "", group.strDirection );
            addText( HUNTING_X, "", group.strHunting );
            addText( CHANNELS_X, "", std::to_string( group.ullChannels ) );
            m_uY += ROW - 13;
        }
        m_uY += ROW;
        std::size_t uX = MARGIN;
        for ( const Look eLook : LOOKS_OF_LEGEND ) {
            if ( !m_map.has( eLook ) )
                continue;
            const auto eTimeslot = eLook == Look::FRAMING ? ChannelMap::Timeslot::FRAMING
                                   : eLook == Look::D_CHANNEL || eLook == Look::CONFLICT
                                       ? ChannelMap::Timeslot::D_CHANNEL
                                       : ChannelMap::Timeslot::BEARER;
            ChannelMap::Run run{ 1, 1, eTimeslot, {} };
            if ( eLook == Look::CONFLICT || eLook == Look::SHARED )
                run.vecGroups = { 0 };
            if ( eLook == Look::SHARED )
                run.vecGroups.push_back( 1 );
            addSwatch( run, uX, CELL );
            addInk( run, uX, CELL, eLook == Look::SHARED ? "" : getMark( run ) );
            addText( uX + CELL + 6, "", getMeaning( eLook ) );
            uX += CELL + 30 + static_cast<std::size_t>( CHARACTER * static_cast<double>( getMeaning( eLook ).size() ) );
        }
    }

    void addSample( const ChannelMap::Run& in_run ) {
        addSwatch( in_run, MARGIN, 2 * CELL );
        addInk( in_run, MARGIN, 2 * CELL, getMark( in_run ) );
    }

    std::string getPatterns() const {
        std::string strPatterns = fmt::format(
            R"(<pattern id="c" width="{0}" height="{0}" x="{1}" patternUnits="userSpaceOnUse">)"
            R"(<path d="M.5 0V{0}" stroke="#000" stroke-opacity=".22"/></pattern>)"
            R"_(<pattern id="p1" width="8" height="8" patternUnits="userSpaceOnUse" patternTransform="rotate(45)">)_"
            R"(<path d="M0 0V8" stroke="#fff" stroke-width="5" stroke-opacity=".75"/></pattern>)"
            R"(<pattern id="p2" width="6" height="6" patternUnits="userSpaceOnUse">)"
            R"(<circle cx="3" cy="3" r="1.7" fill="#fff" fill-opacity=".85"/></pattern>)",
            CELL, CELLS_X );
        for ( const auto& [uFirst, uSecond] : m_setPairs )
            strPatterns += fmt::format(
                R"_(<pattern id="s{}{}" width="12" height="12" patternUnits="userSpaceOnUse" patternTransform="rotate(45)">)_"
                R"(<path fill="{}" d="M0 0H6V12H0z"/><path fill="{}" d="M6 0H12V12H6z"/></pattern>)",
                uFirst, uSecond, GROUP_COLOURS[uFirst].szFill, GROUP_COLOURS[uSecond].szFill );
        return strPatterns;
    }

    const ChannelMap& m_map;
    std::set<std::pair<std::size_t, std::size_t>> m_setPairs; ///< colours of shared runs
    std::string m_strBody;
    std::size_t m_uY = 0; ///< where the next text stands
};

} // namespace

std::string renderSvg( const ChannelMap& in_map, const std::string& in_strHeading ) {
    return SvgMap( in_map ).render( in_strHeading );
}

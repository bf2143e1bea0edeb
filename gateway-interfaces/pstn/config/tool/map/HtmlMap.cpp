#include <regex>
#include <set>
#include <utility>

#include <fmt/format.h>

#include "../Printable.h"
#include "MapRenderings.h"
#include "MapStyle.h"
#include "PageParts.h"

using Look = ChannelMap::Look;

namespace {

constexpr unsigned int SHORT_RUN = 2; ///< as many cells have no room for a name

class HtmlMap {
public:
    explicit HtmlMap( const ChannelMap& in_map ) : m_map( in_map ) {}

    std::string render( const std::string& in_strHeading ) {
        const std::string strHeading = escapeMarkup( printable( in_strHeading ) );
        m_strPage = fmt::format( R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Channel map of {0}</title>
<style>
{1}{2}</style>
</head>
<body>
<h1>Channel map of {0}</h1>
<p>{3}</p>
)",
                                 strHeading, PAGE_STYLE, getGroupStyle(), m_map.getSummary() );
        addForm();
        addLegend();
        m_strPage += "<div id=\"lines\" role=\"listbox\" aria-label=\"Lines\">\n";
        for ( const ChannelMap::Board& board : m_map.getBoards() )
            addBoard( board );
        m_strPage += "</div>\n<footer id=\"detail\" role=\"status\" data-hint=\"Choose a line to read its timeslots."
                     "\"></footer>\n<script>\n";
        return std::move( m_strPage ) + PAGE_SCRIPT + "</script>\n</body>\n</html>\n";
    }

private:
    static std::string getGroupStyle() {
        std::string strStyle;
        for ( std::size_t u = 0; u < GROUP_COLOURS.size(); ++u )
            strStyle +=
                fmt::format( ":root {{ --c{0}: {1}; }} .c{0} {{ --c: linear-gradient({1} 0 0); color: {2}; }}\n", u,
                             GROUP_COLOURS[u].szFill, GROUP_COLOURS[u].szInk );
        return strStyle;
    }

    void addForm() {
        m_strPage += R"(<form role="search">
<label>Search <input type="search" id="search" placeholder="line, board or group" autocomplete="off"></label>
<label>Show <select id="filter">
<option value="">all lines</option>
)";
        for ( const auto& [eLook, szLines] : { std::pair( Look::FREE, "with free timeslots" ),
                                               std::pair( Look::SHARED, "with timeslots in several groups" ),
                                               std::pair( Look::CONFLICT, "marked with !" ) } )
            m_strPage += fmt::format( "<option value=\"{}\">lines {}</option>\n", getClass( eLook ), szLines );
        for ( std::size_t u = 0; u < m_map.getGroups().size(); ++u )
            m_strPage += fmt::format( "<option value=\"{}\">group {}: {}</option>\n", u, getCode( u ),
                                      escapeMarkup( m_map.getGroups()[u].strId ) );
        m_strPage += "</select></label>\n<output id=\"shown\"></output>\n</form>\n";
    }

    void addLegend() {
        constexpr std::size_t SHORT_LEGEND = 12;
        m_strPage += fmt::format( "<details aria-label=\"Legend\"{}><summary>Legend</summary>\n",
                                  m_map.getGroups().size() <= SHORT_LEGEND ? " open" : "" );
        if ( !m_map.getGroups().empty() )
            m_strPage += "<table><tr><th><th>group<th>direction<th>hunting<th class=\"n\">channels\n";
        for ( std::size_t u = 0; u < m_map.getGroups().size(); ++u ) {
            const ChannelMap::Group& group = m_map.getGroups()[u];
            m_strPage +=
                fmt::format( "<tr><td><i class=\"{}\">{}</i><td>{}<td>{}<td>{}<td class=\"n\">{}\n", getGroupClass( u ),
                             withGround( { 1, 1, ChannelMap::Timeslot::BEARER, { u } }, getCode( u ) ),
                             escapeMarkup( group.strId ), group.strDirection,
                             std::regex_replace( group.strHunting, std::regex( "_" ), "_<wbr>" ), group.ullChannels );
        }
        m_strPage += m_map.getGroups().empty() ? "<ul class=\"key\">" : "</table>\n<ul class=\"key\">";
        for ( const Look eLook : LOOKS_OF_LEGEND ) {
            if ( m_map.has( eLook ) )
                m_strPage += fmt::format( "<li><i class=\"{}\"{}>{}</i>{}", getClass( eLook ),
                                          eLook == Look::SHARED ? getStripes( { 0, 1 } ) : "",
                                          eLook == Look::D_CHANNEL  ? "D"
                                          : eLook == Look::CONFLICT ? "!"
                                                                    : "",
                                          getMeaning( eLook ) );
        }
        m_strPage += "</ul></details>\n";
    }

    void addBoard( const ChannelMap::Board& in_board ) {
        const std::string strTitle = escapeMarkup( in_board.strTitle );
        m_strPage += fmt::format( "<section role=\"group\" aria-label=\"{0}\" style=\"--rows:{1}\"><div class=\"t\" "
                                  "role=\"presentation\"><b>{0}</b>",
                                  strTitle, in_board.vecLines.size() );
        const std::vector<unsigned int> vecTicks = in_board.getTicks();
        m_strPage += vecTicks.empty() ? "</div>\n" : "<div class=\"z\">";
        for ( const unsigned int uTick : vecTicks )
            m_strPage += fmt::format( "<span style=\"left:{}%\">{}</span>", uTick * 3.125, uTick );
        m_strPage += vecTicks.empty() ? "" : "</div></div>\n";
        for ( const ChannelMap::Line& line : in_board.vecLines )
            addLine( line );
        m_strPage += "</section>\n";
    }

    void addLine( const ChannelMap::Line& in_line ) {
        std::set<std::string> setUses;
        std::string strRuns;
        std::string strWords = fmt::format( "{}, {}, {}.", in_line.strName, in_line.strMedia, in_line.strUniqueId );
        for ( const ChannelMap::Run& run : in_line.vecRuns ) {
            strWords += ( &run == &in_line.vecRuns.front() ? " " : "; " ) + m_map.describe( in_line, run );
            setUses.insert( getClass( run.getLook() ) );
            for ( const std::size_t uGroup : run.vecGroups )
                setUses.insert( std::to_string( uGroup ) );
            strRuns += getRun( in_line, run );
        }
        std::string strStray;
        for ( const ChannelMap::Stray& stray : in_line.vecStray ) {
            strWords += "; " + m_map.describe( stray );
            strStray += fmt::format( "<div class=\"w\">! {}</div>", escapeMarkup( m_map.describe( stray ) ) );
            setUses.insert( getClass( Look::CONFLICT ) );
            if ( stray.uGroup )
                setUses.insert( std::to_string( *stray.uGroup ) );
        }
        m_strPage += fmt::format( "<div class=\"r\" role=\"option\" tabindex=\"-1\" data-u=\"{}\" "
                                  "aria-label=\"{}\"><div class=\"l\"><b>{}</b>"
                                  "<span>{}</span><em>{}</em></div><div class=\"s{}\">{}</div>{}</div>\n",
                                  fmt::join( setUses, " " ), escapeMarkup( strWords ), in_line.uId,
                                  escapeMarkup( in_line.strName ), in_line.strMedia,
                                  !in_line.isSpan()                    ? " a"
                                  : in_line.vecRuns.front().uFirst > 0 ? " T"
                                                                       : "",
                                  strRuns, strStray );
    }

    std::string getRun( const ChannelMap::Line& in_line, const ChannelMap::Run& in_run ) const {
        const Look eLook = in_run.getLook();
        std::string strStyle;
        if ( in_run.getLength() > 1 )
            strStyle = fmt::format( " style=\"--n:{}\"", in_run.getLength() );
        if ( eLook == Look::SHARED )
            strStyle = getStripes( in_run.vecGroups, in_run.getLength() );
        const std::string strMark = getMark( in_run );
        std::string strLabel = escapeMarkup( getLabel( m_map, in_run ) );
        std::string strName;
        if ( !in_line.isSpan() && strLabel.size() > strMark.size() ) // a port's name has room behind its only cell
            strName = "<span>" + strLabel.substr( strMark.size() + 1 ) + "</span>";
        std::string strClass = eLook == Look::GROUP ? getGroupClass( in_run.vecGroups.front() ) : getClass( eLook );
        if ( const unsigned int uCells = in_run.getLength(); uCells <= SHORT_RUN && !strMark.empty() ) {
            strLabel = strMark;
            strClass += strMark.size() > uCells ? " o e" : " o";
        }
        return fmt::format( "<i class=\"{}\"{} title=\"{}\">{}</i>{}", strClass, strStyle,
                            escapeMarkup( m_map.describe( in_line, in_run ) ), withGround( in_run, strLabel ),
                            strName );
    }

    /// The text with a plain ground where it stands on a pattern.
    static std::string withGround( const ChannelMap::Run& in_run, const std::string& in_strMarkup ) {
        const Look eLook = in_run.getLook();
        const bool bPattern =
            eLook == Look::SHARED || ( eLook == Look::GROUP && getPattern( in_run.vecGroups.front() ) > 0 );
        return bPattern ? "<u>" + in_strMarkup + "</u>" : in_strMarkup;
    }

    static std::string getStripes( const std::vector<std::size_t>& in_vecGroups, unsigned int in_uCells = 1 ) {
        return fmt::format(
            " style=\"--n:{};--c:repeating-linear-gradient(45deg,var(--c{}) 0 6px,var(--c{}) 6px 12px)\"", in_uCells,
            getColour( in_vecGroups[0] ), getColour( in_vecGroups[1] ) );
    }

    static std::string getGroupClass( std::size_t in_uGroup ) {
        const std::size_t uPattern = getPattern( in_uGroup );
        return fmt::format( "c{}{}", getColour( in_uGroup ), uPattern > 0 ? fmt::format( " p{}", uPattern ) : "" );
    }

    /// Class of the timeslots that look so; a filter names it, too.
    static const char* getClass( Look in_eLook ) {
        switch ( in_eLook ) {
        case Look::FRAMING:
            return "f";
        case Look::D_CHANNEL:
            return "d";
        case Look::SHARED:
            return "m";
        case Look::CONFLICT:
            return "x";
        case Look::FREE:
            return "n";
        case Look::GROUP:
            break;
        }
        return "g";
    }

    const ChannelMap& m_map;
    std::string m_strPage;
};

} // namespace

std::string renderHtml( const ChannelMap& in_map, const std::string& in_strHeading ) {
    return HtmlMap( in_map ).render( in_strHeading );
}

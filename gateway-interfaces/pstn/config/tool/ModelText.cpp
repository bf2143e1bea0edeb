#include "ModelText.h"

#include <algorithm>
#include <map>

#include "Printable.h"

using namespace Velquin::Pstn;

namespace {

constexpr std::size_t WIDTH = 96;
constexpr std::size_t VALUE_COLUMN = 32; ///< of what stands behind the name of a part

const std::map<std::string, const char*> SECTION_NAMES{
    { "providers", "provider" },
    { "analogBoards", "analog board" },
    { "digitalBoards", "digital board" },
    { "analogConfigs", "analog configuration" },
    { "digitalConfigs", "digital configuration" },
    { "channelGroups", "channel group" },
};

/// Headings of the columns whose keys would make them wide.
const std::map<std::string, const char*> HEADINGS{
    { "shortId", "line" },
    { "displayName", "name" },
    { "tirpipeInterface", "tirpipe" },
    { "primaryClockReference", "reference" },
    { "peerVirtualBoardID", "peer board" },
    { "peerVirtualInterfaceID", "peer line" },
    { "physicalConfig", "configuration" },
    { "callControl", "call control" },
};

/// Columns that a UTF-8 text takes, if each of its characters takes one.
std::size_t getWidth( const std::string& in_strText ) {
    return static_cast<std::size_t>(
        std::count_if( in_strText.begin(), in_strText.end(), []( char c ) { return ( c & 0xC0 ) != 0x80; } ) );
}

bool isPlain( const std::string& in_strText ) {
    return !in_strText.empty() && in_strText != "none" &&
           std::all_of( in_strText.begin(), in_strText.end(), []( char c ) {
               return ( c >= '0' && c <= '9' ) || ( c >= 'A' && c <= 'Z' ) || ( c >= 'a' && c <= 'z' ) ||
                      std::string_view( "-_./+#()" ).find( c ) != std::string_view::npos;
           } );
}

bool isDefault( const Json& in_object, const std::string& in_strKey ) {
    const auto itDefaults = in_object.find( "defaults" );
    return itDefaults != in_object.end() && itDefaults->is_array() &&
           std::find( itDefaults->begin(), itDefaults->end(), in_strKey ) != itDefaults->end();
}

std::string toMarkedWords( const Json& in_object, const std::string& in_strKey, const Json& in_value ) {
    return toWords( in_value ) + ( isDefault( in_object, in_strKey ) ? "*" : "" );
}

/// Prints a part's name, and items behind it, on as many lines as they need.
void printItems( std::ostream& out_stream, std::size_t in_uIndent, const std::string& in_strName,
                 const std::vector<std::string>& in_vecItems, const char* in_szSeparator ) {
    std::string strLine = std::string( in_uIndent, ' ' ) + in_strName;
    const std::size_t uColumn = in_strName.empty() ? in_uIndent : VALUE_COLUMN;
    for ( std::size_t u = 0; u < in_vecItems.size(); ++u ) {
        const std::string strItem = in_vecItems[u] + ( u + 1 < in_vecItems.size() ? in_szSeparator : "" );
        if ( u > 0 && getWidth( strLine ) + 1 + getWidth( strItem ) > WIDTH ) {
            out_stream << strLine << '\n';
            strLine.clear();
        }
        const std::size_t uWidth = getWidth( strLine );
        strLine.append( uWidth < uColumn ? uColumn - uWidth : u > 0 || !in_strName.empty(), ' ' );
        strLine += strItem;
    }
    if ( !in_vecItems.empty() || !in_strName.empty() )
        out_stream << strLine << '\n';
}

/// Prints an object's settings: its values side by side, then each part below.
void printSettings( std::ostream& out_stream, const Json& in_object, std::size_t in_uIndent,
                    const std::string& in_strName = {} ) {
    std::vector<std::string> vecItems;
    for ( const auto& [strKey, value] : in_object.items() ) {
        if ( value.is_primitive() && !( in_strName.empty() && strKey == "displayName" ) ) // the title tells that
            vecItems.push_back( strKey + " " + toMarkedWords( in_object, strKey, value ) );
    }
    printItems( out_stream, in_uIndent, in_strName, vecItems, "," );
    const std::size_t uBelow = in_uIndent + ( in_strName.empty() ? 0 : 2 );
    for ( const auto& [strKey, value] : in_object.items() ) {
        if ( value.is_object() && strKey != "interfaces" && strKey != "ranges" && strKey != "members" ) {
            printSettings( out_stream, value, uBelow, strKey );
        } else if ( value.is_array() && !isListOfDefaults( strKey, value ) ) {
            vecItems.clear();
            for ( const Json& element : value )
                vecItems.push_back( toWords( element ) );
            printItems( out_stream, uBelow, strKey, vecItems, "" );
        }
    }
}

/// Prints objects as the rows of a table. A row begins with its key under `in_szKeyHeading`, if that is not empty.
void printObjects( std::ostream& out_stream, const Json& in_objects, const std::string& in_strKeyHeading ) {
    std::vector<std::vector<std::string>> vecRows;
    for ( const auto& [strId, object] : in_objects.items() ) {
        std::vector<std::string> vecHeading;
        std::vector<std::string> vecCells;
        if ( !in_strKeyHeading.empty() ) {
            vecHeading.push_back( in_strKeyHeading );
            vecCells.push_back( strId );
        }
        for ( const auto& [strKey, value] : object.items() ) {
            if ( strKey == "longId" || isListOfDefaults( strKey, value ) )
                continue;
            const auto itHeading = HEADINGS.find( strKey );
            vecHeading.push_back( itHeading == HEADINGS.end() ? strKey : itHeading->second );
            vecCells.push_back( value == Json( "" ) ? "" : toMarkedWords( object, strKey, value ) );
        }
        if ( vecRows.empty() )
            vecRows.push_back( vecHeading );
        else if ( vecHeading != vecRows.front() )
            vecCells.resize( vecRows.front().size() );
        vecRows.push_back( std::move( vecCells ) );
    }
    printTable( out_stream, vecRows );
}

void printRanges( std::ostream& out_stream, const Json& in_ranges ) {
    std::vector<std::vector<std::string>> vecRows{ { "line", "channels", "call control" } };
    for ( const auto& [strLine, ranges] : in_ranges.items() ) {
        for ( const Json& range : ranges ) {
            const std::string strFirst = toWords( range["firstChannel"] );
            const std::string strLast = toWords( range["lastChannel"] );
            vecRows.push_back(
                { strLine, strFirst == strLast ? strFirst : std::string( strFirst ).append( "-" ).append( strLast ),
                  range.contains( "callControl" ) ? range["callControl"].get<std::string>() : "" } );
        }
    }
    printTable( out_stream, vecRows );
}

} // namespace

std::string toWords( const Json& in_value ) {
    if ( in_value.is_boolean() )
        return in_value.get<bool>() ? "yes" : "no";
    if ( in_value.is_object() ) {
        std::string strWords;
        for ( const auto& [strKey, value] : in_value.items() ) {
            if ( !isListOfDefaults( strKey, value ) )
                strWords += ( strWords.empty() ? "" : ", " ) + strKey + " " + toWords( value );
        }
        return "{" + strWords + "}";
    }
    if ( in_value.empty() )
        return "none";
    if ( in_value.is_array() ) {
        std::string strWords;
        for ( const Json& element : in_value )
            strWords += ( strWords.empty() ? "" : ", " ) + element.get<std::string>();
        return strWords;
    }
    if ( in_value.is_string() && isPlain( in_value.get_ref<const std::string&>() ) )
        return in_value.get<std::string>();
    return printable( toText( in_value ) );
}

std::string toTitle( const std::string& in_strSection, const std::string& in_strId, const Json& in_object ) {
    const auto itName = SECTION_NAMES.find( in_strSection );
    const std::string strDisplayName = in_object.value( "displayName", "" );
    return ( itName == SECTION_NAMES.end() ? in_strSection : itName->second ) + ( " " + toWords( in_strId ) ) +
           ( strDisplayName.empty() ? "" : " " + printable( toText( strDisplayName ) ) );
}

void printTable( std::ostream& out_stream, const std::vector<std::vector<std::string>>& in_vecRows ) {
    if ( in_vecRows.size() < 2 )
        return;
    std::vector<std::size_t> vecWidths( in_vecRows.front().size(), 0 );
    for ( std::size_t uRow = 1; uRow < in_vecRows.size(); ++uRow ) {
        for ( std::size_t u = 0; u < vecWidths.size(); ++u )
            vecWidths[u] = std::max( vecWidths[u], getWidth( in_vecRows[uRow][u] ) );
    }
    for ( const std::vector<std::string>& vecRow : in_vecRows ) {
        std::string strLine;
        std::size_t uColumn = 2;
        for ( std::size_t u = 0; u < vecRow.size(); ++u ) {
            if ( vecWidths[u] == 0 )
                continue;
            strLine.append( uColumn - getWidth( strLine ), ' ' );
            strLine += vecRow[u];
            uColumn += std::max( vecWidths[u], getWidth( in_vecRows.front()[u] ) ) + 2;
        }
        out_stream << strLine << '\n';
    }
}

void printModel( std::ostream& out_stream, const Json& in_model ) {
    for ( const auto& [strSection, section] : in_model.items() ) {
        for ( const auto& [strId, object] : section.items() ) {
            out_stream << toTitle( strSection, strId, object ) << '\n';
            printSettings( out_stream, object, 2 );
            if ( object.contains( "interfaces" ) )
                printObjects( out_stream, object["interfaces"], "" );
            if ( object.contains( "members" ) )
                printObjects( out_stream, object["members"], "member" );
            if ( object.contains( "ranges" ) )
                printRanges( out_stream, object["ranges"] );
            out_stream << '\n';
        }
    }
    out_stream << "* the default: what the setting has until something sets it\n";
}

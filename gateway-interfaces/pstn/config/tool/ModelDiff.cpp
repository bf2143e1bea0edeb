#include "ModelDiff.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <vector>

#include "LessByNumbers.h"
#include "ModelText.h"
#include "Printable.h"

using namespace Velquin::Pstn;

namespace {

/// What follows from other values, or is compared in another way.
const std::set<std::string> DERIVED{ "shortId", "longId", "appliedTo", "ranges" };
/// Parts whose entries have an identity, and what one is called.
const std::map<std::string, std::string> CONTAINERS{
    { "interfaces", "line" }, { "members", "member" }, { "detectors", "detector" } };

/// The lines to which an object of a section applies, or which it is; null for others.
Json listLines( const Json& in_object ) {
    if ( in_object.contains( "shortId" ) )
        return Json::array( { in_object["shortId"] } );
    if ( !in_object.contains( "members" ) )
        return in_object.value( "appliedTo", Json() );
    Json lines = Json::array();
    for ( const auto& [strLine, member] : in_object["members"].items() )
        lines.push_back( strLine );
    return lines;
}

/// Compares all but channels.
class SettingsDiff {
public:
    explicit SettingsDiff( Json& out_changes ) : m_changes( out_changes ) {}

    /// @param in_path the keys of the entries' container
    /// @param in_strName what stands in front of an entry's name; empty for that of a section
    void compareEntries( const Json& in_old, const Json& in_new, const Json& in_path, const std::string& in_strName ) {
        std::unordered_map<std::string, const Json*> mapNew;
        for ( const auto& [strId, entry] : in_new.items() )
            mapNew[strId] = &entry;
        for ( const auto& [strId, entry] : in_old.items() ) {
            const auto itNew = mapNew.find( strId );
            if ( itNew == mapNew.end() ) {
                addEntry( "removed", in_path, strId, entry, in_strName );
                continue;
            }
            const Object object = toObject( in_path, strId, *itNew->second, in_strName );
            compareSettings( entry, *itNew->second, object, Json::array() );
            mapNew.erase( itNew );
        }
        for ( const auto& [strId, entry] : in_new.items() ) {
            if ( mapNew.contains( strId ) )
                addEntry( "added", in_path, strId, entry, in_strName );
        }
    }

private:
    struct Object {
        Json path;
        std::string strName;
        Json lines; ///< to which it applies, or that it is
    };

    static Json extend( Json in_path, const std::string& in_strKey ) {
        in_path.push_back( in_strKey );
        return in_path;
    }

    static Object toObject( const Json& in_path, const std::string& in_strId, const Json& in_entry,
                            const std::string& in_strName ) {
        Object object{ extend( in_path, in_strId ), in_strName + in_strId, listLines( in_entry ) };
        if ( in_path.size() == 1 )
            object.strName = toTitle( in_path[0].get<std::string>(), in_strId, in_entry );
        else if ( in_entry.contains( "shortId" ) )
            object.strName = toTitle( "line", in_entry["shortId"].get<std::string>(), in_entry );
        return object;
    }

    void addEntry( const char* in_szChange, const Json& in_path, const std::string& in_strId, const Json& in_entry,
                   const std::string& in_strName ) {
        const Object object = toObject( in_path, in_strId, in_entry, in_strName );
        m_changes.push_back(
            Json::object( { { "change", in_szChange }, { "object", object.path }, { "name", object.strName } } ) );
        if ( const auto itLines = in_entry.find( "interfaces" ); itLines != in_entry.end() ) {
            for ( const auto& [strId, line] : itLines->items() )
                addEntry( in_szChange, extend( object.path, "interfaces" ), strId, line, "" );
        }
    }

    void compareSettings( const Json& in_old, const Json& in_new, const Object& in_object, const Json& in_setting ) {
        std::vector<std::string> vecKeys;
        for ( const auto& [strKey, value] : in_old.items() )
            vecKeys.push_back( strKey );
        for ( const auto& [strKey, value] : in_new.items() ) {
            if ( !in_old.contains( strKey ) )
                vecKeys.push_back( strKey );
        }
        for ( const std::string& strKey : vecKeys ) {
            static const Json s_none;
            const Json& oldValue = in_old.contains( strKey ) ? in_old[strKey] : s_none;
            const Json& newValue = in_new.contains( strKey ) ? in_new[strKey] : s_none;
            if ( DERIVED.contains( strKey ) || strKey == "defaults" || oldValue == newValue )
                continue;
            const Json setting = extend( in_setting, strKey );
            if ( !oldValue.is_object() || !newValue.is_object() ) {
                addChange( in_object, setting, oldValue, newValue );
            } else if ( const auto itKind = CONTAINERS.find( strKey ); itKind != CONTAINERS.end() ) {
                Json path = in_object.path;
                path.insert( path.end(), setting.begin(), setting.end() );
                compareEntries( oldValue, newValue, path, in_object.strName + " " + itKind->second + " " );
            } else {
                compareSettings( oldValue, newValue, in_object, setting );
            }
        }
    }

    void addChange( const Object& in_object, const Json& in_setting, const Json& in_old, const Json& in_new ) {
        Json change = Json::object( { { "change", "changed" },
                                      { "object", in_object.path },
                                      { "name", in_object.strName },
                                      { "setting", in_setting },
                                      { "old", in_old },
                                      { "new", in_new } } );
        if ( !in_object.lines.is_null() )
            change["lines"] = in_object.lines;
        m_changes.push_back( std::move( change ) );
    }

    Json& m_changes;
};

// ---- Channels

/// The group that has a channel, and the channel's call control.
using Holder = std::pair<std::string, std::string>;
using Holders = std::set<Holder>;

/// Holders that begin or end to have channels of a line.
struct Event {
    bool bNew;
    bool bBegin;
    Holder holder;
};

/// By line: what happens at each channel.
using LineEvents = std::map<std::string, std::multimap<unsigned long long, Event>, LessByNumbers>;

void gatherEvents( const Json& in_model, bool in_bNew, LineEvents& inout_mapEvents ) {
    for ( const auto& [strGroup, group] : in_model["channelGroups"].items() ) {
        for ( const auto& [strLine, ranges] : group["ranges"].items() ) {
            for ( const Json& range : ranges ) {
                const auto ullFirst = range["firstChannel"].get<unsigned long long>();
                const auto ullLast = range["lastChannel"].get<unsigned long long>();
                const Holder holder{ ullFirst <= ullLast ? strGroup : strGroup + " (last channel first)",
                                     range.value( "callControl", "" ) };
                auto& mapEvents = inout_mapEvents[strLine];
                mapEvents.emplace( std::min( ullFirst, ullLast ), Event{ in_bNew, true, holder } );
                mapEvents.emplace( std::max( ullFirst, ullLast ) + 1, Event{ in_bNew, false, holder } );
            }
        }
    }
}

Json listGroups( const Holders& in_holders, bool in_bCallControl ) {
    Json names = Json::array();
    for ( const auto& [strGroup, strCallControl] : in_holders )
        names.push_back( in_bCallControl ? std::string( strGroup ).append( " (" ).append( strCallControl ).append( ")" )
                                         : strGroup );
    return names;
}

/// @param in_setChangedLines lines of which a change tells that they have other call control
void compareChannels( const Json& in_old, const Json& in_new, const std::set<std::string>& in_setChangedLines,
                      Json& out_changes ) {
    LineEvents mapLines;
    gatherEvents( in_old, false, mapLines );
    gatherEvents( in_new, true, mapLines );
    for ( const auto& [strLine, mapEvents] : mapLines ) {
        Holders aHolders[2]; // before and after
        for ( auto it = mapEvents.begin(); it != mapEvents.end(); ) {
            const unsigned long long ullChannel = it->first;
            for ( ; it != mapEvents.end() && it->first == ullChannel; ++it ) {
                Holders& holders = aHolders[it->second.bNew];
                if ( it->second.bBegin )
                    holders.insert( it->second.holder );
                else
                    holders.erase( it->second.holder );
            }
            if ( aHolders[0] == aHolders[1] )
                continue;
            const bool bSameGroups = listGroups( aHolders[0], false ) == listGroups( aHolders[1], false );
            if ( bSameGroups && in_setChangedLines.contains( strLine ) )
                continue;
            Json change = Json::object( {
                { "change", aHolders[0].empty()   ? "added"
                            : aHolders[1].empty() ? "removed"
                                                  : "moved" },
                { "line", strLine },
                { "firstChannel", ullChannel },
                { "lastChannel", it->first - 1 },
                { "old", listGroups( aHolders[0], bSameGroups ) },
                { "new", listGroups( aHolders[1], bSameGroups ) },
            } );
            Json& last = out_changes.empty() ? change : out_changes.back();
            if ( last.value( "line", "" ) == strLine && last["lastChannel"] == ullChannel - 1 &&
                 last["old"] == change["old"] && last["new"] == change["new"] )
                last["lastChannel"] = change["lastChannel"];
            else
                out_changes.push_back( std::move( change ) );
        }
    }
}

/// Printable texts with a separator between them.
std::string join( const Json& in_texts, const char* in_szSeparator ) {
    std::string strAll;
    for ( const Json& text : in_texts )
        strAll += ( strAll.empty() ? "" : in_szSeparator ) + printable( text.get<std::string>() );
    return strAll;
}

} // namespace

Json diffModels( const Json& in_old, const Json& in_new ) {
    Json changes = Json::array();
    SettingsDiff settings( changes );
    for ( const auto& [strSection, section] : in_new.items() )
        settings.compareEntries( in_old[strSection], section, Json::array( { strSection } ), "" );
    std::set<std::string> setChangedLines;
    for ( const Json& change : changes ) {
        if ( change.contains( "setting" ) && change["setting"][0] == "callControl" )
            setChangedLines.insert( change["lines"][0].get<std::string>() );
    }
    compareChannels( in_old, in_new, setChangedLines, changes );
    return changes;
}

void printChanges( std::ostream& out_stream, const Json& in_changes ) {
    const std::map<std::string, char> mapMarks{
        { "added", '+' }, { "removed", '-' }, { "changed", '~' }, { "moved", '~' } };
    std::string strTold; // the object whose settings stand above
    for ( const Json& change : in_changes ) {
        const char cMark = mapMarks.at( change["change"].get<std::string>() );
        if ( change.contains( "line" ) ) {
            const std::string strOld = join( change["old"], ", " );
            const std::string strNew = join( change["new"], ", " );
            const bool bOne = change["firstChannel"] == change["lastChannel"];
            const std::string strVerbEnd = bOne ? "s" : "";
            out_stream << cMark << " line " << change["line"].get<std::string>() << ": channel" << ( bOne ? " " : "s " )
                       << change["firstChannel"];
            if ( !bOne )
                out_stream << '-' << change["lastChannel"];
            if ( strOld.empty() )
                out_stream << " join" << strVerbEnd << " group " << strNew << '\n';
            else if ( strNew.empty() )
                out_stream << " leave" << strVerbEnd << " group " << strOld << '\n';
            else
                out_stream << " move" << strVerbEnd << " from group " << strOld << " to group " << strNew << '\n';
            continue;
        }
        const auto strName = change["name"].get<std::string>();
        if ( strName != strTold ) {
            out_stream << cMark << ' ' << strName;
            if ( change.contains( "lines" ) && change["object"].size() == 2 ) {
                const Json& lines = change["lines"];
                const auto itEnd =
                    lines.begin() + static_cast<std::ptrdiff_t>( std::min<std::size_t>( lines.size(), 8 ) );
                out_stream << ", lines " << join( Json( Json::array_t( lines.begin(), itEnd ) ), " " );
                if ( lines.size() > 8 )
                    out_stream << " and " << lines.size() - 8 << " more";
            }
            out_stream << '\n';
        }
        strTold = cMark == '~' ? strName : "";
        if ( change.contains( "setting" ) )
            out_stream << "    " << join( change["setting"], " " ) << ": " << toWords( change["old"] ) << " -> "
                       << toWords( change["new"] ) << '\n';
    }
    if ( in_changes.empty() )
        out_stream << "no change\n";
}

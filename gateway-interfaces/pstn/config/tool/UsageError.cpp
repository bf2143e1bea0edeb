#include "UsageError.h"

#include <algorithm>
#include <vector>

#include <velquin/pstn/Suggestion.h>

namespace {

/// @param in_bList whether to list the names when none is near
std::string describeUnknown( const char* in_szWhat, const std::string& in_strName,
                             const std::vector<std::string>& in_vecNames, bool in_bList ) {
    const bool bHint = in_bList || !Velquin::Pstn::findNearest( in_strName, in_vecNames ).empty();
    return std::string( "unknown " ) + in_szWhat + " \"" + in_strName + "\"" +
           ( bHint ? "; " + Velquin::Pstn::describeNames( in_strName, in_vecNames ) : "" );
}

} // namespace

std::string describeUnknownVerb( const CLI::App& in_app, int in_nArguments, const char* const* in_aszArguments ) {
    const std::string strVerb = in_nArguments > 1 ? in_aszArguments[1] : "-";
    std::vector<std::string> vecVerbs;
    for ( const CLI::App* const pVerb : in_app.get_subcommands( []( const CLI::App* ) { return true; } ) )
        vecVerbs.push_back( pVerb->get_name() );
    if ( strVerb.starts_with( '-' ) || std::count( vecVerbs.begin(), vecVerbs.end(), strVerb ) > 0 )
        return {};
    return describeUnknown( "subcommand", strVerb, vecVerbs, true );
}

std::string describeUnknownOption( const CLI::App& in_app ) {
    for ( const CLI::App* const pVerb : in_app.get_subcommands() ) {
        std::vector<std::string> vecOptions;
        for ( const CLI::Option* const pOption : pVerb->get_options() ) {
            for ( const std::string& strName : pOption->get_lnames() )
                vecOptions.push_back( "--" + strName );
        }
        for ( const std::string& strArgument : pVerb->remaining() ) {
            if ( strArgument.starts_with( '-' ) )
                return describeUnknown( "option", strArgument.substr( 0, strArgument.find( '=' ) ), vecOptions, false );
        }
    }
    return {};
}

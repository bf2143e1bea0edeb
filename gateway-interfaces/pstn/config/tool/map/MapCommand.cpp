#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <system_error>

#include "../Command.h"
#include "../FileArgument.h"
#include "../LoadedConfig.h"
#include "../Terminal.h"
#include "../Utf8Path.h"
#include "MapRenderings.h"

namespace {

struct MapOptions {
    std::string strFile;
    std::string strSchema;
    std::string strOutput; ///< empty for text on standard output
    std::string strColour = COLOUR_CHOICES[0];
};

using Renderer = std::string ( * )( const ChannelMap&, const std::string& );

/// The renderer for a file of that name; null if there is none.
Renderer getRenderer( const std::string& in_strOutput ) {
    const std::string strEnding = toUtf8( toPath( in_strOutput ).extension() );
    return strEnding == ".svg" ? renderSvg : strEnding == ".html" ? renderHtml : nullptr;
}

/// The C++ library doesn't promise errno, but sets it.
std::string describeLastError() {
    return std::generic_category().message( errno );
}

ExitCode refuseOutput( const std::string& in_strOutput, const std::string& in_strReason ) {
    std::cerr << "pstnconfig: can't write " << in_strOutput << ": " << in_strReason << std::endl;
    return EXIT_NOT_CHECKED;
}

ExitCode map( const MapOptions& in_options ) {
    ExitCode eExitCode = EXIT_VALID;
    const auto pConfig = loadConfig( in_options.strFile, in_options.strSchema, eExitCode );
    if ( !pConfig )
        return eExitCode;
    std::error_code error;
    if ( !in_options.strOutput.empty() &&
         std::filesystem::equivalent( toPath( in_options.strOutput ), toPath( in_options.strFile ), error ) )
        return refuseOutput( in_options.strOutput, "it is the file to read" );
    const ChannelMap channelMap( *pConfig );
    const std::string strHeading = toUtf8( toPath( FileArgument::nameOf( in_options.strFile ) ).filename() );
    std::ofstream file;
    if ( !in_options.strOutput.empty() ) {
        file.open( toPath( in_options.strOutput ), std::ios::binary | std::ios::trunc );
        if ( !file )
            return refuseOutput( in_options.strOutput, describeLastError() );
    }
    std::ostream& stream = in_options.strOutput.empty() ? std::cout : file;
    stream << ( in_options.strOutput.empty() ? renderText( channelMap, strHeading, wantsColour( in_options.strColour ) )
                                             : getRenderer( in_options.strOutput )( channelMap, strHeading ) )
           << std::flush;
    if ( in_options.strOutput.empty() || stream ) // the program itself looks at standard output
        return EXIT_VALID;
    return refuseOutput( in_options.strOutput, describeLastError() );
}

} // namespace

void addMapCommand( Program& inout_program ) {
    const auto pOptions = std::make_shared<MapOptions>();
    pOptions->strSchema = inout_program.strDefaultSchema;
    CLI::App* const pMap =
        inout_program.app.add_subcommand( "map", "Shows which timeslot of which line belongs to which channel group" );
    pMap->add_option( "FILE", pOptions->strFile, "Configuration file; - is standard input" )->required();
    pMap->add_option( "-o,--output", pOptions->strOutput,
                      "Write a picture (FILE.svg) or a page with search (FILE.html) instead of text" )
        ->type_name( "FILE" )
        ->check( CLI::Validator(
            []( const std::string& in_strOutput ) {
                return getRenderer( in_strOutput ) ? "" : in_strOutput + ": the name must end in .svg or .html";
            },
            "" ) );
    pMap->add_option( "--color", pOptions->strColour,
                      "Colours of the text: auto (on a terminal, unless NO_COLOR is set), always or never" )
        ->type_name( "WHEN" )
        ->check(
            CLI::IsMember( std::vector<std::string>( std::begin( COLOUR_CHOICES ), std::end( COLOUR_CHOICES ) ) ) );
    addSchemaOption( *pMap, pOptions->strSchema );
    pMap->footer(
        "Each row is a line, each cell a timeslot. Letters name the channel groups of the legend.\n"
        "Exit code: 0 the map is written, 1 the file is invalid, 2 wrong usage, or a file or the schema can't "
        "be read or written." );
    pMap->callback( [pOptions, &inout_program] { inout_program.eExitCode = map( *pOptions ); } );
}

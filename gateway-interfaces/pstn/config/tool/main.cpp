#include <cstdio>
#include <exception>
#include <iostream>

#include <velquin/pstn/document/LibXml2Version.h>

#include "Command.h"
#include "CommandLine.h"
#include "SchemaPath.h"
#include "Terminal.h"
#include "UsageError.h"

namespace {

std::string describeUsageError( const std::string& in_strReason ) {
    return "pstnconfig: " + in_strReason + "\nRun with --help for more information.\n";
}

/// The text of --version. Which libxml2 reads the files matters as much as the program's own version.
std::string describeVersions() {
    const Velquin::Pstn::LibXml2Version libXml2 = Velquin::Pstn::getLibXml2Version();
    return "pstnconfig " PSTNCONFIG_VERSION "\nlibxml2 " + libXml2.strRunning +
           ( libXml2.strBuiltWith == libXml2.strRunning ? "" : " (built with " + libXml2.strBuiltWith + ')' );
}

int run( const std::vector<std::string>& in_vecCommandLine ) {
    Program program;
    program.strDefaultSchema = getDefaultSchemaPath( in_vecCommandLine.front().c_str() );
    program.app.allow_windows_style_options( false ); // a path may begin with a slash
    program.app.description( "Checks PSTN configuration files of the gateway, and shows what is in them." );
    program.app.set_version_flag( "--version", describeVersions() );
    program.app.require_subcommand( 1 );
    program.app.footer( "Exit code: 0 all files valid or the same, 1 a file invalid or different, 2 wrong usage, or a "
                        "file can't be read." );
    addCheckCommand( program );
    addShowCommand( program );
    addDiffCommand( program );
    addMapCommand( program );

    std::vector<const char*> vecArguments;
    vecArguments.reserve( in_vecCommandLine.size() );
    for ( const std::string& strWord : in_vecCommandLine )
        vecArguments.push_back( strWord.c_str() );
    const int nArguments = static_cast<int>( vecArguments.size() );
    if ( const std::string strUnknown = describeUnknownVerb( program.app, nArguments, vecArguments.data() );
         !strUnknown.empty() ) {
        std::cerr << describeUsageError( strUnknown );
        return EXIT_NOT_CHECKED;
    }
    program.app.failure_message( []( const CLI::App* in_pApp, const CLI::Error& in_error ) {
        const std::string strUnknown = describeUnknownOption( *in_pApp );
        return describeUsageError( strUnknown.empty() ? in_error.what() : strUnknown );
    } );
    try {
        program.app.parse( nArguments, vecArguments.data() );
    } catch ( const CLI::ParseError& error ) {
        program.eExitCode = program.app.exit( error ) == 0 ? EXIT_VALID : EXIT_NOT_CHECKED;
    }
    if ( !std::cout.flush() ) {
        std::cerr << "pstnconfig: can't write the output" << std::endl;
        return EXIT_NOT_CHECKED;
    }
    return program.eExitCode;
}

} // namespace

void addSchemaOption( CLI::App& inout_command, std::string& inout_strSchema ) {
    inout_command
        .add_option( "--schema", inout_strSchema, "RelaxNG schema instead of the one that comes with the program" )
        ->type_name( "RNG" );
}

int main( int argc, char** argv ) {
    // Allocates the buffer now. At the first line of output, a large document would already be freed, and malloc would
    // tidy up all its memory first.
    static char s_aBuffer[BUFSIZ];
    std::setvbuf( stdout, s_aBuffer, _IOFBF, sizeof( s_aBuffer ) );
    try {
        const Utf8Console console;
        return run( getCommandLine( argc, argv ) );
    } catch ( const std::exception& error ) {
        std::cerr << "pstnconfig: " << error.what() << std::endl;
        return EXIT_NOT_CHECKED;
    }
}

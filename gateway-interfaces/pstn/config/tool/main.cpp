#include <cstdio>
#include <exception>
#include <iostream>

#include <CLI/CLI.hpp>

#include "CheckCommand.h"
#include "SchemaPath.h"

namespace {

int run( int in_nArguments, char** in_aszArguments ) {
    CLI::App app( "Checks PSTN configuration files of the gateway." );
    app.set_version_flag( "--version", PSTNCONFIG_VERSION );
    app.require_subcommand( 1 );

    CheckOptions options;
    options.strSchema = getDefaultSchemaPath( in_aszArguments[0] );
    CLI::App* const pCheck =
        app.add_subcommand( "check", "Loads files as the gateway does and prints what is wrong with them" );
    pCheck->add_option( "FILE", options.vecFiles, "Configuration files" )->required();
    pCheck->add_option( "--schema", options.strSchema, "RelaxNG schema instead of the one that comes with the program" )
        ->type_name( "RNG" );
    pCheck->add_option( "--parameters", options.strParameters, "The gateway's parameters, a file of name=value lines" )
        ->type_name( "FILE" );
    pCheck
        ->add_option( "--log-level", options.strLogLevel, "Print the load's log to standard error, from this level on" )
        ->type_name( "LEVEL" )
        ->transform( CLI::IsMember( { "TRACE", "DEBUG", "INFO", "WARN", "ERROR", "OFF" }, CLI::ignore_case ) );
    pCheck->add_flag( "--log-content", options.bLogContent,
                      "Log the files with line numbers, at INFO (raises the log level to INFO unless it is given)" );
    app.footer(
        "Exit code: 0 all files valid, 1 a file invalid, 2 wrong usage or a file or the schema can't be read." );

    try {
        app.parse( in_nArguments, in_aszArguments );
    } catch ( const CLI::ParseError& error ) {
        return app.exit( error ) == 0 ? EXIT_VALID : EXIT_NOT_CHECKED;
    }
    if ( options.bLogContent && pCheck->count( "--log-level" ) == 0 )
        options.strLogLevel = "INFO";
    return check( options );
}

} // namespace

int main( int argc, char** argv ) {
    // Allocates the buffer now. At the first line of output, a large document would already be freed, and malloc would
    // tidy up all its memory first.
    static char s_aBuffer[BUFSIZ];
    std::setvbuf( stdout, s_aBuffer, _IOFBF, sizeof( s_aBuffer ) );
    try {
        return run( argc, argv );
    } catch ( const std::exception& error ) {
        std::cerr << "pstnconfig: " << error.what() << std::endl;
        return EXIT_NOT_CHECKED;
    }
}

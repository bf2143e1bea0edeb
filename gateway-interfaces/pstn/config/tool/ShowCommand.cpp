#include <iostream>
#include <memory>

#include <velquin/MemAccount.h>

#include "Command.h"
#include "LoadedConfig.h"
#include "ModelText.h"

namespace {

struct ShowOptions {
    std::string strFile;
    std::string strSchema;
    bool bJson = false;
    bool bMemory = false;
};

/// Prints what each class of the model holds now.
void printMemory() {
    std::vector<std::vector<std::string>> vecRows{ { "class", "objects", "bytes", "most bytes" } };
    for ( const Velquin::MemAccount::Figures& one : Velquin::MemAccount::list() )
        vecRows.push_back( { one.strName, std::to_string( one.ullObjects ), std::to_string( one.ullBytes ),
                             std::to_string( one.ullPeakBytes ) } );
    printTable( std::cout, vecRows );
}

ExitCode show( const ShowOptions& in_options ) {
    ExitCode eExitCode = EXIT_VALID;
    const auto pConfig = loadConfig( in_options.strFile, in_options.strSchema, eExitCode );
    if ( !pConfig )
        return eExitCode;
    if ( in_options.bMemory )
        printMemory();
    else if ( in_options.bJson )
        std::cout << Velquin::Pstn::toText( describeModel( *pConfig ), 2 ) << '\n';
    else
        printModel( std::cout, describeModel( *pConfig ) );
    return EXIT_VALID;
}

} // namespace

void addShowCommand( Program& inout_program ) {
    const auto pOptions = std::make_shared<ShowOptions>();
    pOptions->strSchema = inout_program.strDefaultSchema;
    CLI::App* const pShow = inout_program.app.add_subcommand(
        "show", "Loads a file as the gateway does and shows what it holds: boards, lines, call control" );
    pShow->add_option( "FILE", pOptions->strFile, "Configuration file; - is standard input" )->required();
    CLI::Option* const pJson = pShow->add_flag(
        "--json", pOptions->bJson, "Print everything as JSON; share/doc/pstnconfig/docs/show-json.md says how" );
    pShow->add_flag( "--memory", pOptions->bMemory, "Print the memory that each class of the model holds" )
        ->excludes( pJson );
    addSchemaOption( *pShow, pOptions->strSchema );
    pShow->footer( "A star, and in JSON the list \"defaults\", mark values that are the default.\n"
                   "Exit code: 0 shown, 1 the gateway refuses the file, 2 wrong usage, or the file or the schema can't "
                   "be\nread, or the output can't be written." );
    pShow->callback( [pOptions, &inout_program] { inout_program.eExitCode = show( *pOptions ); } );
}

#include <iostream>
#include <memory>

#include "Command.h"
#include "FileArgument.h"
#include "LoadedConfig.h"
#include "ModelDiff.h"

using namespace Velquin::Pstn;

namespace {

struct DiffOptions {
    std::string strOld;
    std::string strNew;
    std::string strSchema;
    std::string strFormat = "text";
};

ExitCode diff( const DiffOptions& in_options ) {
    if ( in_options.strOld == FileArgument::STANDARD_INPUT && in_options.strNew == FileArgument::STANDARD_INPUT )
        throw CLI::ValidationError( "NEW", "standard input (-) can be read only once" );
    ExitCode eUnused = EXIT_NOT_CHECKED; // a file that can't be loaded is no change
    const auto pOld = loadConfig( in_options.strOld, in_options.strSchema, eUnused );
    const auto pNew = loadConfig( in_options.strNew, in_options.strSchema, eUnused );
    if ( !pOld || !pNew )
        return EXIT_NOT_CHECKED;
    const Json changes = diffModels( describeModel( *pOld ), describeModel( *pNew ) );
    if ( in_options.strFormat == "json" )
        std::cout << toText( Json::object( { { "same", changes.empty() }, { "changes", changes } } ), 2 ) << '\n';
    else
        printChanges( std::cout, changes );
    return changes.empty() ? EXIT_SAME : EXIT_DIFFERENT;
}

} // namespace

void addDiffCommand( Program& inout_program ) {
    const auto pOptions = std::make_shared<DiffOptions>();
    pOptions->strSchema = inout_program.strDefaultSchema;
    CLI::App* const pDiff = inout_program.app.add_subcommand(
        "diff", "Says what changes for the gateway from one file to another, whatever their order and layout" );
    pDiff->add_option( "OLD", pOptions->strOld, "Configuration file; - is standard input" )->required();
    pDiff->add_option( "NEW", pOptions->strNew, "Configuration file" )->required();
    pDiff
        ->add_option( "--format", pOptions->strFormat,
                      "text, or json; share/doc/pstnconfig/docs/show-json.md says what is in it" )
        ->type_name( "FORMAT" )
        ->transform( CLI::IsMember( { "text", "json" } ) );
    addSchemaOption( *pDiff, pOptions->strSchema );
    pDiff->footer( "Boards, lines and configurations are the same when their identifiers are. A channel that changes\n"
                   "its group is told as such.\n"
                   "Exit code: 0 no change, 1 changes, 2 wrong usage, or a file can't be loaded or the output can't "
                   "be written." );
    pDiff->callback( [pOptions, &inout_program] { inout_program.eExitCode = diff( *pOptions ); } );
}

#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include <velquin/GlobalConfig.h>
#include <velquin/pstn/loading/PSTNConfigParamDefs.h>
#include <velquin/pstn/loading/XmlConfig.h>

#include "Command.h"
#include "FindingPrinter.h"
#include "ToolLog.h"

namespace {

struct CheckOptions {
    std::vector<std::string> vecFiles;
    std::string strSchema;
    std::string strParameters; ///< file of the gateway's parameters, or empty
    std::string strLogLevel = "OFF";
    bool bLogContent = false;
};

std::string count( unsigned int in_uCount, const char* in_szWhat ) {
    return std::to_string( in_uCount ) + " " + in_szWhat + ( in_uCount == 1 ? "" : "s" );
}

ExitCode checkFile( const std::string& in_strFile, const CheckOptions& in_options ) {
    FindingPrinter printer( std::cout, in_strFile );
    bool bValid = false;
    {
        const Velquin::FindingWatch watch(
            [&printer]( const Velquin::Finding& in_finding ) { printer.print( in_finding ); } );
        // The model of the last file ends with the process: to release it object by object would take a tenth of the
        // CPU time.
        static Velquin::Pstn::XmlConfig* s_pConfig = nullptr;
        delete std::exchange( s_pConfig, nullptr );
        s_pConfig = new Velquin::Pstn::XmlConfig();
        bValid = s_pConfig->load( in_strFile.c_str(), in_options.strSchema.c_str(), in_options.bLogContent );
    }
    const bool bNotChecked = !bValid && ( printer.isUnreadable() || printer.concerns( in_options.strSchema ) );
    std::string strCounts;
    if ( printer.getErrors() > 0 ) // a valid file has errors when the gateway leaves out what it can't read
        strCounts = count( printer.getErrors(), "error" );
    if ( printer.getWarnings() > 0 )
        strCounts += ( strCounts.empty() ? "" : ", " ) + count( printer.getWarnings(), "warning" );
    std::cout << in_strFile
              << ( bValid        ? ": valid"
                   : bNotChecked ? ": not checked"
                                 : ": invalid" )
              << ( strCounts.empty() ? "" : " (" + strCounts + ")" ) << std::endl;
    return bValid ? EXIT_VALID : bNotChecked ? EXIT_NOT_CHECKED : EXIT_INVALID;
}

/// Checks every file and yields the worst of their exit codes.
ExitCode check( const CheckOptions& in_options ) {
    setUpLog( in_options.strLogLevel );
    Velquin::PSTNConfig::addParametersToDB();
    if ( !in_options.strParameters.empty() &&
         !Velquin::GlobalConfig::getInstance().loadFile( in_options.strParameters.c_str() ) ) {
        std::cerr << "pstnconfig: can't read parameters file " << in_options.strParameters << std::endl;
        return EXIT_NOT_CHECKED;
    }
    ExitCode eWorst = EXIT_VALID;
    for ( const std::string& strFile : in_options.vecFiles )
        eWorst = std::max( eWorst, checkFile( strFile, in_options ) );
    return eWorst;
}

} // namespace

void addCheckCommand( Program& inout_program ) {
    const auto pOptions = std::make_shared<CheckOptions>();
    CheckOptions& options = *pOptions;
    options.strSchema = inout_program.strDefaultSchema;
    CLI::App* const pCheck = inout_program.app.add_subcommand(
        "check", "Loads files as the gateway does and prints what is wrong with them" );
    pCheck->add_option( "FILE", options.vecFiles, "Configuration files" )->required();
    addSchemaOption( *pCheck, options.strSchema );
    pCheck->add_option( "--parameters", options.strParameters, "The gateway's parameters, a file of name=value lines" )
        ->type_name( "FILE" );
    pCheck
        ->add_option( "--log-level", options.strLogLevel, "Print the load's log to standard error, from this level on" )
        ->type_name( "LEVEL" )
        ->transform( CLI::IsMember( { "TRACE", "DEBUG", "INFO", "WARN", "ERROR", "OFF" }, CLI::ignore_case ) );
    pCheck->add_flag( "--log-content", options.bLogContent,
                      "Log the files with line numbers, at INFO (raises the log level to INFO unless it is given)" );
    pCheck->callback( [pOptions, pCheck, &inout_program] {
        if ( pOptions->bLogContent && pCheck->count( "--log-level" ) == 0 )
            pOptions->strLogLevel = "INFO";
        inout_program.eExitCode = check( *pOptions );
    } );
}

#include <algorithm>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include <velquin/GlobalConfig.h>
#include <velquin/pstn/RuleNames.h>
#include <velquin/pstn/loading/PSTNConfigParamDefs.h>

#include "../Command.h"
#include "../Terminal.h"
#include "../ToolLog.h"
#include "ParameterFile.h"
#include "Progress.h"
#include "RuleHelp.h"
#include "TextReport.h"

using Velquin::Finding;
using Velquin::GlobalConfig;
using Velquin::Pstn::PSTNConfigParamDefs;

namespace {

struct CheckOptions {
    std::vector<std::string> vecFiles;
    CheckRequest request;
    std::string strParameters; ///< file of the gateway's parameters, or empty
    std::string strLogLevel = "OFF";
    std::string strFormat = "text";
    std::string strColour = COLOUR_CHOICES[0];
    std::vector<std::string> vecDisabled;
    std::string strExplain; ///< rule to explain, or empty
    bool bSource = false;
    bool bStrict = false;
    bool bQuiet = false;
    bool bListRules = false;
    bool bOwnSchema = false; ///< whether the command line names the schema
};

std::unique_ptr<Report> makeReport( const CheckOptions& in_options ) {
    if ( in_options.bQuiet )
        return std::make_unique<Report>();
    if ( in_options.strFormat == "json" )
        return makeJsonReport( std::cout );
    if ( in_options.strFormat == "sarif" )
        return makeSarifReport( std::cout );
    return std::make_unique<TextReport>(
        std::cout, TextStyle{ in_options.bSource, wantsColour( in_options.strColour ), getTerminalWidth() } );
}

/// A run of the verb.
class Check {
public:
    explicit Check( const CheckOptions& in_options ) : m_options( in_options ), m_pReport( makeReport( in_options ) ) {}

    /// @return the worst exit code of all files
    ExitCode run();

private:
    CheckedFile check( const std::string& in_strFile ) const;
    bool readParameters();
    void add( const CheckedFile& in_file );

    CheckOptions m_options;
    std::unique_ptr<Report> m_pReport;
    CheckTotals m_totals;
    ExitCode m_eWorst = EXIT_VALID;
};

ExitCode Check::run() {
    if ( !m_options.strParameters.empty() && !readParameters() )
        return EXIT_NOT_CHECKED;
    // The model of the last file ends with the process: to release it object by object would take a tenth of the CPU
    // time.
    static CheckedFile& s_file = *new CheckedFile();
    Progress progress( m_options.vecFiles.size(), !m_options.bQuiet );
    for ( const std::string& strFile : m_options.vecFiles ) {
        progress.begin( strFile );
        s_file = {}; // releases the last model before it makes the next
        s_file = check( strFile );
        progress.clear();
        add( s_file );
        if ( !std::cout.flush() )
            break;
    }
    m_pReport->finish( m_totals );
    return m_eWorst;
}

/// Checks a file. Unreadable standard input is a finding, as an unreadable file is: the other files are still checked.
CheckedFile Check::check( const std::string& in_strFile ) const try {
    return checkFile( FileArgument( in_strFile ), m_options.request );
} catch ( const std::runtime_error& error ) {
    Finding finding;
    finding.eKind = Finding::Kind::UNREADABLE_FILE;
    finding.strRule = Velquin::Pstn::Rules::UNREADABLE_FILE;
    finding.nLevel = Velquin::Logger::ERROR_LEVEL;
    finding.strFile = FileArgument::nameOf( in_strFile );
    finding.strMessage = error.what();
    CheckedFile file;
    file.strFile = finding.strFile;
    file.eVerdict = Verdict::UNCHECKED;
    file.getLine = []( unsigned long long ) { return std::string_view(); };
    file.add( std::move( finding ) );
    return file;
}

/// Loads the gateway's parameters. Where the command line names no file, they do.
bool Check::readParameters() {
    GlobalConfig& parameters = GlobalConfig::getInstance();
    if ( !parameters.loadFile( m_options.strParameters.c_str() ) ) {
        std::cerr << "pstnconfig: can't read parameters file " << m_options.strParameters << std::endl;
        return false;
    }
    const PSTNConfigParamDefs& definitions = PSTNConfigParamDefs::getInstance();
    const char* const szFile = definitions.getConfigFile().szName;
    const char* const szSchema = definitions.getSchemaFile().szName;
    std::vector<std::string> vecRequired;
    if ( m_options.vecFiles.empty() )
        vecRequired.push_back( szFile );
    if ( m_options.vecFiles.empty() && !m_options.bOwnSchema )
        vecRequired.push_back( szSchema );
    const CheckedFile file = checkParameters( m_options.strParameters, vecRequired, m_options.request );
    if ( !file.vecFindings.empty() )
        add( file );
    if ( !m_options.vecFiles.empty() || file.eVerdict != Verdict::VALID )
        return true;
    parameters.getString( szFile, m_options.vecFiles.emplace_back() );
    if ( !m_options.bOwnSchema )
        parameters.getString( szSchema, m_options.request.strSchema );
    return true;
}

void Check::add( const CheckedFile& in_file ) {
    m_pReport->add( in_file );
    m_totals.add( in_file );
    if ( in_file.eVerdict == Verdict::UNCHECKED )
        m_eWorst = EXIT_NOT_CHECKED;
    else if ( in_file.eVerdict != Verdict::VALID || ( m_options.bStrict && in_file.counts.uWarnings > 0 ) )
        m_eWorst = std::max( m_eWorst, EXIT_INVALID );
}

/// Refuses what the parser of the command line can't.
void validate( CheckOptions& inout_options ) {
    if ( inout_options.vecFiles.empty() && inout_options.strParameters.empty() )
        throw CLI::RequiredError( "FILE or --parameters" );
    if ( std::count( inout_options.vecFiles.begin(), inout_options.vecFiles.end(), FileArgument::STANDARD_INPUT ) > 1 )
        throw CLI::ValidationError( "FILE", "standard input (-) can be read only once" );
    for ( const std::string& strRule : inout_options.vecDisabled ) {
        const Velquin::Pstn::Rule* const pRule = Velquin::Pstn::findRule( strRule );
        if ( !pRule )
            throw CLI::ValidationError( "--disable", describeUnknownRule( strRule ) );
        if ( pRule->eSeverity == Velquin::Pstn::Severity::FAULT )
            throw CLI::ValidationError( "--disable", "rule \"" + strRule + "\" can't be disabled: it is an error" );
        inout_options.request.setDisabled.insert( strRule );
    }
}

ExitCode check( CheckOptions& inout_options ) {
    if ( inout_options.bListRules ) {
        listRules( std::cout );
        return EXIT_VALID;
    }
    if ( !inout_options.strExplain.empty() ) {
        const Velquin::Pstn::Rule* const pRule = Velquin::Pstn::findRule( inout_options.strExplain );
        if ( !pRule )
            throw CLI::ValidationError( "--explain", describeUnknownRule( inout_options.strExplain ) );
        explainRule( std::cout, *pRule, getTerminalWidth() );
        return EXIT_VALID;
    }
    validate( inout_options );
    setUpLog( inout_options.strLogLevel );
    Velquin::PSTNConfig::addParametersToDB();
    return Check( inout_options ).run();
}

void addOptions( CLI::App& inout_check, CheckOptions& inout_options ) {
    CheckOptions& options = inout_options;
    inout_check.add_option( "FILE", options.vecFiles, "Configuration files; - is standard input" )->type_name( "" );
    inout_check
        .add_option( "--parameters", options.strParameters,
                     "The gateway's parameters, a file of name=value lines; without FILE, they name file and schema" )
        ->type_name( "FILE" );
    addSchemaOption( inout_check, options.request.strSchema );
    inout_check.add_option( "--format", options.strFormat, "What to print: text, json or sarif" )
        ->type_name( "FORMAT" )
        ->check( CLI::IsMember( { "text", "json", "sarif" } ) );
    inout_check.add_flag( "--source,!--no-source", options.bSource,
                          "Show the lines of the file (on a terminal, that is so unless --no-source)" );
    inout_check
        .add_option( "--color", options.strColour,
                     "Colours of the text: auto (on a terminal, unless NO_COLOR is set), always or never" )
        ->type_name( "WHEN" )
        ->check(
            CLI::IsMember( std::vector<std::string>( std::begin( COLOUR_CHOICES ), std::end( COLOUR_CHOICES ) ) ) );
    inout_check.add_flag( "--all", options.request.bEchoes, "Also show what only follows from other findings" );
    inout_check.add_flag( "--strict", options.bStrict, "Exit with 1 for warnings, too" );
    inout_check.add_flag( "-q,--quiet", options.bQuiet, "Print nothing: the exit code tells" );
    inout_check.add_option( "--disable", options.vecDisabled, "Rules whose warnings and notes not to report" )
        ->type_name( "RULE[,RULE]" )
        ->delimiter( ',' )
        ->allow_extra_args( false );
    inout_check.add_flag( "--list-rules", options.bListRules, "List the rules, and do nothing else" );
    inout_check.add_option( "--explain", options.strExplain, "Say what a rule means and what to do" )
        ->type_name( "RULE" );
    inout_check
        .add_option( "--log-level", options.strLogLevel, "Print the load's log to standard error, from this level on" )
        ->type_name( "LEVEL" )
        ->transform( CLI::IsMember( { "TRACE", "DEBUG", "INFO", "WARN", "ERROR", "OFF" }, CLI::ignore_case ) );
    inout_check.add_flag(
        "--log-content", options.request.bLogContent,
        "Log the files with line numbers, at INFO (raises the log level to INFO unless it is given)" );
}

} // namespace

void addCheckCommand( Program& inout_program ) {
    const auto pOptions = std::make_shared<CheckOptions>();
    pOptions->request.strSchema = inout_program.strDefaultSchema;
    CLI::App* const pCheck = inout_program.app.add_subcommand(
        "check", "Reads files as the gateway does and prints everything that is wrong with them" );
    addOptions( *pCheck, *pOptions );
    pCheck->footer( "Exit code: 0 the gateway loads all files in whole (--strict: and there are no warnings), 1 it "
                    "refuses a file or leaves out a part of it,\n2 wrong usage, or a file or the schema can't be read, "
                    "or the output can't be written." );
    pCheck->callback( [pOptions, pCheck, &inout_program] {
        if ( pOptions->request.bLogContent && pCheck->count( "--log-level" ) == 0 )
            pOptions->strLogLevel = "INFO";
        if ( pCheck->count( "--source" ) == 0 )
            pOptions->bSource = isOutputTerminal();
        pOptions->bOwnSchema = pCheck->count( "--schema" ) > 0;
        inout_program.eExitCode = check( *pOptions );
    } );
}

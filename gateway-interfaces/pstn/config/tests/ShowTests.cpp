#include <regex>

#include "ToolRun.h"

// What the program shows of a configuration, and of the difference between two.

namespace Velquin::Pstn::Test {

namespace {

Json describeFile( const std::string& in_strFile ) {
    XmlConfig config;
    EXPECT_TRUE( load( config, in_strFile, SCHEMA ).bValid ) << in_strFile;
    return describeModel( config );
}

/// Adds the keys of all objects by their paths, with a star for each identifier.
void addKeys( const Json& in_value, const std::string& in_strPath, std::set<std::string>& out_setKeys ) {
    static const std::regex s_holder(
        R"(.*\.(providers|\w+Boards|\w+Configs|channelGroups|N?FAS|FX[OS]|interfaces|members|detectors|ranges))" );
    const bool bIdentifiers = std::regex_match( in_strPath, s_holder );
    for ( const auto& [strKey, value] : in_value.items() ) {
        if ( in_value.is_array() && value.is_object() )
            addKeys( value, in_strPath, out_setKeys );
        if ( !in_value.is_object() || isListOfDefaults( strKey, value ) )
            continue;
        const std::string strPath = in_strPath + "." + ( bIdentifiers ? "*" : strKey );
        if ( !bIdentifiers )
            out_setKeys.insert( strPath );
        addKeys( value, strPath, out_setKeys );
    }
}

/// The words in backticks.
std::vector<std::string> getCode( const std::string& in_strText ) {
    static const std::regex s_code( "`([^`]+)`" );
    return { std::sregex_token_iterator( in_strText.begin(), in_strText.end(), s_code, 1 ), {} };
}

} // namespace

TEST( Show, HasTheKeysThatItsPageNames ) {
    std::set<std::string> setKeys;
    addKeys( describeFile( COMPLETE ), "", setKeys );
    std::set<std::string> setNamed;
    for ( const std::string& strLine : split( readFile( EXAMPLES_FOLDER + "/../docs/show-json.md" ), "\n" ) ) {
        const std::vector<std::string> vecCells = split( strLine, " | " );
        if ( vecCells.size() != 2 )
            continue;
        std::vector<std::string> vecPaths = getCode( vecCells[0] );
        if ( vecPaths.empty() )
            vecPaths.push_back( "" );
        // What stands in parentheses explains.
        for ( const std::string& strKey :
              getCode( std::regex_replace( vecCells[1], std::regex( R"(\([^)]*\))" ), "" ) ) ) {
            for ( const std::string& strPath : vecPaths )
                setNamed.insert( ( strPath.empty() ? "" : "." + strPath ) + "." + strKey );
        }
    }
    EXPECT_EQ( join( { setNamed.begin(), setNamed.end() } ), join( { setKeys.begin(), setKeys.end() } ) );
}

TEST( Show, PrintsTheModelForPeopleAndAsJson ) {
    EXPECT_EQ( runTool( "show " + COMPLETE ).strOutput, readFile( DATA_FOLDER + "/show.txt" ) );
    const ToolResult json = runTool( "show --json " + COMPLETE );
    EXPECT_EQ( json.nExitCode, 0 );
    const Json model = Json::parse( json.strOutput );
    EXPECT_EQ( model, describeFile( COMPLETE ) );
    EXPECT_EQ( model["NFAS"]["1"]["members"]["b2di1"]["defaults"], Json::array( { "nfasInterfaceID" } ) );
    EXPECT_THAT( runTool( "show --memory " + COMPLETE ).strOutput, testing::ContainsRegex( "\n  IsdnFasConfig +2 " ) );
    EXPECT_EQ( runTool( "show --memory --json " + COMPLETE ).nExitCode, 2 );
}

TEST( Show, FitsATerminal ) {
    for ( const char* const szExample : { "branch-office", "carrier-nfas", "e1-trunks", "every-attribute" } ) {
        const std::string strFile = EXAMPLES_FOLDER + "/" + szExample + ".xml";
        for ( const std::string& strLine : split( runTool( "show " + strFile ).strOutput, "\n" ) )
            EXPECT_LE( strLine.size(), 100U ) << strFile << ": " << strLine;
    }
}

TEST( Show, FailsWithFindingsOrAMessage ) {
    const TemporaryFile wrong( TestDocument().edit( { "/fasConfig", "-ID" } ).getText() );
    EXPECT_EQ( runTool( "show /no/such/file" ).nExitCode, 2 );
    for ( const auto& [strCommand, nExitCode] :
          std::map<std::string, int>{ { "show ", 1 }, { "diff " + COMPLETE + " ", 2 } } ) {
        const ToolResult result = runTool( strCommand + wrong.getPath() );
        EXPECT_EQ( result.nExitCode, nExitCode ) << strCommand;
        EXPECT_EQ( result.strOutput, "" );
        EXPECT_NE( result.strErrors.find( "ID" ), std::string::npos );
    }
}

// Edits of the complete document, and what the program says of them.
TEST( Diff, TellsWhatChanges ) {
    for ( const Record& record : readRecords( "diffs.rows", "@>" ) ) {
        SCOPED_TRACE( record.strHead );
        const TemporaryFile file( TestDocument( record.vecEdits ).getText() );
        const std::string strFiles = COMPLETE + " " + file.getPath();
        const std::vector<std::string>& vecLines = record.mapLines.at( '>' );
        const bool bSame = vecLines[0] == "no change";
        const ToolResult text = runTool( "diff " + strFiles );
        EXPECT_EQ( text.nExitCode, bSame ? 0 : 1 );
        EXPECT_EQ( text.strOutput, join( vecLines ) );
        const ToolResult json = runTool( "diff --format json " + strFiles );
        EXPECT_EQ( json.nExitCode, text.nExitCode );
        const Json parsed = Json::parse( json.strOutput );
        EXPECT_EQ( parsed["same"], bSame );
        // A change has a line of its own, but for the title above settings.
        const auto nTitles = std::count_if( vecLines.begin(), vecLines.end(), []( const std::string& in_strLine ) {
            return in_strLine.starts_with( "~ " ) && in_strLine.find( ": channel" ) == std::string::npos;
        } );
        EXPECT_EQ( parsed["changes"].size(), bSame ? 0 : vecLines.size() - static_cast<std::size_t>( nTitles ) );
        const Json back = Json::parse( runTool( "diff --format json " + file.getPath() + " " + COMPLETE ).strOutput );
        EXPECT_EQ( back["changes"].size(), parsed["changes"].size() );
    }
}

// Two keywords of an attribute that mean something else are two models.
TEST( Diff, MissesNoKeyword ) {
    unsigned int uDifferent = 0;
    for ( const KeywordRow& row : getKeywordRows() ) {
        const auto& [strFirst, nFirst] = row.vecKeywords.front();
        const auto& [strLast, nLast] = row.vecKeywords.back();
        const auto write = [&row]( const std::string& in_strKeyword ) {
            TestDocument document( row.vecNeeds );
            return document.edit( { row.strPath, row.strAttribute + "=\"" + in_strKeyword + "\"" } ).getText();
        };
        const TemporaryFile first( write( strFirst ) );
        const TemporaryFile last( write( strLast ) );
        const ToolResult result = runTool( "diff " + first.getPath() + " " + last.getPath() );
        if ( result.nExitCode == 2 )
            continue; // one of the two needs more than a keyword
        EXPECT_EQ( result.nExitCode, nFirst == nLast ? 0 : 1 ) << row.strPath << ' ' << row.strAttribute;
        uDifferent += result.nExitCode == 1 ? 1 : 0;
    }
    EXPECT_GT( uDifferent, 30U );
}

} // namespace Velquin::Pstn::Test

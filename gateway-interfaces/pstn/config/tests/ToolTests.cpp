#include "ToolRun.h"

#include <algorithm>
#include <regex>

// The program that operators run: how it exits, and what it says. More of what it says stands in transcripts.

namespace Velquin::Pstn::Test {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const std::string EXAMPLE = EXAMPLES_FOLDER + "/branch-office.xml";

/// The example, with one text changed.
std::string changeExample( const std::string& in_strFrom, const std::string& in_strTo ) {
    std::string strText = readFile( EXAMPLE );
    const std::size_t u = strText.find( in_strFrom );
    EXPECT_NE( u, std::string::npos ) << in_strFrom;
    return strText.replace( u, in_strFrom.size(), in_strTo );
}

/// With a byte order mark, or in big-endian order without one.
std::string toUtf16( const std::string& in_strAscii, bool in_bMark ) {
    std::string strUtf16 = in_bMark ? "\xFF\xFE" : "";
    for ( const char c : in_strAscii )
        in_bMark ? strUtf16 += { c, '\0' } : strUtf16 += { '\0', c };
    return strUtf16;
}

/// The example with a range that the gateway takes with a warning.
const std::string SWAPPED[] = { "firstChannel=\"17\" lastChannel=\"31\"", "firstChannel=\"31\" lastChannel=\"17\"" };

} // namespace

TEST( Tool, AcceptsAValidFileWithTheSchemaThatComesWithIt ) {
    const ToolResult result = runTool( "check " + EXAMPLE );
    EXPECT_EQ( result.nExitCode, 0 );
    EXPECT_EQ( result.strOutput, EXAMPLE + ": valid\n" );
    EXPECT_EQ( result.strErrors, "" );
}

TEST( Tool, ExitsWithTheWorstOfWhatItFound ) {
    const TemporaryFile invalid( changeExample( "CRC4", "crc4" ) );
    const TemporaryFile partial( changeExample( "busy/3", "a/b/c" ) );
    const TemporaryFile warning( changeExample( SWAPPED[0], SWAPPED[1] ) );
    const auto expectExit = [&]( int in_nExitCode, const std::string& in_strArguments ) {
        const ToolResult result = runTool( "check " + in_strArguments );
        EXPECT_EQ( result.nExitCode, in_nExitCode ) << in_strArguments << "\n" << result.strOutput;
        EXPECT_EQ( result.strErrors, "" ) << in_strArguments;
    };
    expectExit( 1, EXAMPLE + " " + invalid.getPath() + " " + EXAMPLE );
    expectExit( 1, partial.getPath() );
    expectExit( 0, warning.getPath() );
    expectExit( 1, "--strict " + warning.getPath() );
    expectExit( 2, "/no/such/file.xml " + invalid.getPath() );
    expectExit( 2, "--schema /no/such/schema.rng " + EXAMPLE );
    expectExit( 2, "--schema " + EXAMPLE + " " + EXAMPLE );
    expectExit( 2, "--schema " + TOOL + " " + EXAMPLE );
    EXPECT_EQ( runTool( "check --quiet " + invalid.getPath() + " /no/such/file.xml" ).strOutput, "" );
}

TEST( Tool, LeavesOutWarningsThatNobodyWants ) {
    const TemporaryFile file( changeExample( SWAPPED[0], SWAPPED[1] ) );
    EXPECT_THAT( runTool( "check " + file.getPath() ).strOutput, HasSubstr( "[channels-swapped]\n" ) );
    const ToolResult result = runTool( "check --strict --disable no-d-channel,channels-swapped " + file.getPath() );
    EXPECT_NE( result.strErrors, "" ); // no-d-channel is an error
    EXPECT_EQ( result.nExitCode, 2 );
    EXPECT_THAT( runTool( "check --disable channels-swapped " + file.getPath() ).strOutput,
                 Not( HasSubstr( "channels-swapped" ) ) );
}

TEST( Tool, FindsLineAndColumnInAnyFile ) {
    const std::string strWrong = changeExample( "CRC4\"", "crc4\"" );
    const auto expectPlace = [&]( const std::string& in_strText, const std::string& in_strPlace ) {
        const TemporaryFile file( in_strText );
        EXPECT_THAT( runTool( "check " + file.getPath() ).strOutput,
                     StartsWith( file.getPath() + in_strPlace + ": error: framing=" ) );
    };
    const std::string strTag = "<digitalE1 ";
    const std::size_t uTag = strWrong.find( strTag );
    const auto insert = [&]( std::size_t in_uAt, const std::string& in_strText ) {
        return std::string( strWrong ).insert( in_uAt, in_strText );
    };
    expectPlace( strWrong, ":42:18" );
    expectPlace( insert( uTag, "\t" ), ":42:19" );
    expectPlace( insert( uTag, "<!-- é電 -->" ), ":42:29" );
    expectPlace( insert( uTag + strTag.size(), "\n\n " ), ":44:2" );
    expectPlace( insert( strWrong.find( "<pstnConfig" ), std::string( 100000, '\n' ) ), ":100042:18" );
    std::string strUtf16 = strWrong;
    strUtf16.replace( strUtf16.find( "UTF-8" ), 5, "UTF-16" );
    expectPlace( toUtf16( strUtf16, true ), ":42:18" );
    expectPlace( toUtf16( strUtf16, false ), ":42:18" );
}

TEST( Tool, CutsLongLinesAroundTheMark ) {
    const std::string strBlanks( 5000, ' ' );
    std::string strText = changeExample( "CRC4\"", "crc4\"" );
    strText.insert( strText.find( "lineEncoding" ), strBlanks ).insert( strText.find( "framing" ), strBlanks );
    const TemporaryFile file( strText );
    const std::vector<std::string> vecLines = split( runTool( "check --source " + file.getPath() ).strOutput, "\n" );
    ASSERT_GE( vecLines.size(), 3U );
    EXPECT_TRUE( std::regex_match( vecLines[1], std::regex( "   42 [|] … +framing=\"crc4\" +…" ) ) ) << vecLines[1];
    EXPECT_EQ( vecLines[1].size(), 100 + 4 ); // each "…" has three bytes
    EXPECT_EQ( vecLines[2].find( "^~~~" ), vecLines[1].find( "crc4" ) - 2 );
}

TEST( Tool, ShowsWhatCannotBeSeen ) {
    const TemporaryFile file( changeExample( "CRC4\"", "crc4\xC2\xA0\" loop=\"\xC2\x9B\xE2\x80\xAE\x7F\"" ) );
    const std::string strOutput = runTool( "check --source " + file.getPath() ).strOutput;
    EXPECT_THAT( strOutput, HasSubstr( "framing=\"crc4<U+00A0>\": valid values" ) );
    EXPECT_THAT( strOutput, HasSubstr( "crc4<U+00A0>\" loop=\"???\"" ) );
    EXPECT_THAT( strOutput, HasSubstr( " ^" + std::string( 11, '~' ) + "\n" ) );
}

TEST( Tool, PrintsTheJsonOfItsPage ) {
    std::string strExample;
    for ( const std::string& strLine : split( readFile( EXAMPLES_FOLDER + "/../docs/check-json.md" ), "\n" ) ) {
        if ( strLine.starts_with( "    " ) )
            strExample += strLine + "\n";
    }
    const TemporaryFile file( changeExample( R"(ID="6" displayName="Fax")", R"(ID="5" displayName="Fax")" ) );
    std::string strOutput = runTool( "check --format json " + file.getPath() ).strOutput;
    const std::string strPath = Json( file.getPath() ).dump();
    for ( std::size_t u = 0; ( u = strOutput.find( strPath ) ) != std::string::npos; )
        strOutput.replace( u, strPath.size(), "\"site.xml\"" );
    EXPECT_EQ( Json::parse( strExample ), Json::parse( strOutput ) );
}

TEST( Tool, WritesTheLogToStandardErrorWhenAsked ) {
    const ToolResult content = runTool( "check --log-content " + EXAMPLE );
    EXPECT_EQ( content.strOutput, EXAMPLE + ": valid\n" );
    EXPECT_THAT( content.strErrors, HasSubstr( "\n     7: <pstnConfig version=\"2.3\">\n" ) );
    EXPECT_THAT( content.strErrors, Not( HasSubstr( "DEBUG" ) ) );
    EXPECT_THAT( runTool( "check --log-level debug " + EXAMPLE ).strErrors,
                 HasSubstr( "adding new digital board: 1<E1 card>" ) );
}

TEST( Tool, TakesTheGatewaysParameters ) {
    const auto check = []( const std::string& in_strParameters, const std::string& in_strArguments ) {
        const TemporaryFile parameters( in_strParameters );
        return runTool( "check --parameters " + parameters.getPath() + in_strArguments );
    };
    const std::string strFile = "marovane.pstn.config.file = " + EXAMPLE + "\n";
    const std::string strSchema = "marovane.pstn.config.schemaFile=" + std::string( SCHEMA ) + "\n";
    EXPECT_EQ( check( strFile + strSchema, "" ).strOutput, EXAMPLE + ": valid\n" );
    EXPECT_EQ( check( strFile + "marovane.pstn.config.schemaFile=/no/schema.rng", "" ).nExitCode, 2 );
    EXPECT_EQ( check( strFile, std::string( " --schema " ) + SCHEMA ).nExitCode, 0 );

    // Names that other modules of the gateway may know are none of its business.
    const ToolResult unknown = check( "# the gateway\nmarovane.Installation.Directory=/opt\nsip.port=1\n"
                                      "marovane.pstn.config.log=1\n #x=1\n marovan.pstn.config.file=1\n"
                                      "include /no/file",
                                      " " + EXAMPLE );
    EXPECT_EQ( unknown.nExitCode, 0 );
    EXPECT_TRUE( std::regex_match( unknown.strOutput,
                                   std::regex( "[^\n]*:4:1: warning: [^\n]*config.log[^\n]*\n"
                                               "[^\n]*:6:2: warning: [^\n]*did you mean[^\n]*\n"
                                               "[^\n]*:7:1: warning: line without \"=\"[^\n]*\n"
                                               "[^\n]*: valid [(]3 warnings[)]\n[^\n]*: valid\n2 files: 2 valid "
                                               "[(]3 warnings[)]\n" ) ) )
        << unknown.strOutput;
    const ToolResult unreadable = runTool( "check --parameters /no/such/file " + EXAMPLE );
    EXPECT_EQ( unreadable.nExitCode, 2 );
    EXPECT_EQ( unreadable.strErrors, "pstnconfig: can't read parameters file /no/such/file\n" );
}

TEST( Tool, PrintsNothingThatATerminalObeys ) {
    const std::string strId = "\"a\xc2\x9b"
                              "2J\xe2\x80\xae&#10;b\"";
    const TemporaryFile file(
        TestDocument( { { "REVERSE_LINEAR\"/></channelGroups>",
                          "REVERSE_LINEAR\"/><channelGroup ID=" + strId + " direction=\"IN\"/></channelGroups>" },
                        { "lastChannel=\"15\"/>", "lastChannel=\"15\"/><BChannelRange channelGroupID=" + strId +
                                                      " firstChannel=\"16\" lastChannel=\"16\"/>" } } )
            .getText() );
    for ( const std::string& strVerb : { std::string( "check --source " ), std::string( "show " ),
                                         std::string( "map " ), "diff " + COMPLETE + " " } ) {
        const std::string strOutput = runTool( strVerb + file.getPath() ).strOutput;
        EXPECT_THAT( strOutput, HasSubstr( "a?2J?" ) ) << strVerb;
        for ( const char* const szObeyed : { "\xc2\x9b", "\xe2\x80\xae", "\nb" } )
            EXPECT_EQ( strOutput.find( szObeyed ), std::string::npos ) << strVerb;
    }
}

TEST( Tool, SaysThatTheOutputCannotBeWritten ) {
    for ( const std::string strArguments :
          { "check ", "check --format json ", "check --list-rules ", "--help ", "show ", "map " } ) {
        const TemporaryFile errors( "" );
        const std::string strCommand = TOOL + " " + strArguments + EXAMPLE + " >/dev/full 2>" + errors.getPath();
        EXPECT_EQ( runCommand( strCommand ), 2 * 256 ) << strArguments;
        EXPECT_THAT( readFile( errors.getPath() ), StartsWith( "pstnconfig: can't write " ) ) << strArguments;
    }
}

TEST( Tool, RefusesWrongUsage ) {
    for ( const char* const szArguments :
          { "", "check", "load x", "check --log-level LOUD x", "check --bad x", "check --format xml x",
            "check --disable no-such-rule x", "check --explain no-such-rule", "check - -" } ) {
        const ToolResult result = runTool( szArguments );
        EXPECT_EQ( result.nExitCode, 2 ) << szArguments;
        EXPECT_EQ( result.strOutput, "" );
        EXPECT_THAT( result.strErrors, StartsWith( "pstnconfig: " ) ) << szArguments;
    }
    EXPECT_EQ( runTool( "--help" ).nExitCode, 0 );
}

} // namespace Velquin::Pstn::Test

#include "ToolRun.h"

// The program that operators run: what it prints and how it exits.

namespace Velquin::Pstn::Test {

TEST( Tool, AcceptsAValidFileWithTheSchemaThatComesWithIt ) {
    const ToolResult result = runTool( "check " + COMPLETE );
    EXPECT_EQ( result.nExitCode, 0 );
    EXPECT_EQ( result.strOutput, COMPLETE + ": valid\n" );
    EXPECT_EQ( result.strErrors, "" );
}

TEST( Tool, PrintsFindingsAndTheWorstExitCode ) {
    const std::string strAnySchema = " --schema " + ANY_SCHEMA;
    const TestDocument document =
        TestDocument().edit( { "ID=\"2\" displayName=\"T1-B\"", "ID=\"2&#10;\" displayName=\"T1#B\"" } );
    const TemporaryFile wrong( document.getText() );
    const std::string strFile = wrong.getPath();
    const ToolResult result = runTool( "check " + COMPLETE + " " + strFile + strAnySchema );
    EXPECT_EQ( result.nExitCode, 1 );
    EXPECT_EQ( result.strOutput,
               COMPLETE + ": valid\n" +
                   document.expand( "{file}:{line}: error: displayName=\"T1#B\": display "
                                    "name may contains spaces, '-', '_' and alpha numeric characters "
                                    "[/pstnConfig/boards/tirvanaDigitalBoard[2]/interface[2]]\n"
                                    "{file}:{line:/tirvanaDigitalBoard[2]}: error: configuration of the board "
                                    "tirvanaDigitalBoard contains one ore more errors "
                                    "[/pstnConfig/boards/tirvanaDigitalBoard[2]]\n{file}: invalid (2 errors)\n",
                                    strFile ) );

    const auto expectPrinted = [&]( const TestDocument& in_document, const std::string& in_strLine ) {
        const TemporaryFile file( in_document.getText() );
        EXPECT_THAT( runTool( "check " + file.getPath() + strAnySchema ).strOutput,
                     testing::HasSubstr( in_document.expand( in_strLine, file.getPath() ) ) );
    };
    expectPrinted( TestDocument( "<pstnConfig>\n<boards><tirvanaDigitalBoard/></boards></pstnConfig>" ),
                   "{file}:2: error: missing attribute \"ID\" [/pstnConfig/boards/tirvanaDigitalBoard]\n" );
    expectPrinted( TestDocument().edit( { "/dial", "<dialling" } ),
                   "{file}:{line:/outboundCallHandling}: error: missing element \"dial\" "
                   "[/pstnConfig/callControl/analog/analogFxoConfig/outboundCallHandling]\n" );

    const ToolResult missing = runTool( "check /no/such/file.xml " + strFile + strAnySchema );
    EXPECT_EQ( missing.nExitCode, 2 );
    EXPECT_NE( missing.strOutput.find( "/no/such/file.xml: not checked (2 errors)\n" ), std::string::npos );
    EXPECT_EQ( runTool( "check --log-content /no/such/file.xml" ).nExitCode, 2 );
    EXPECT_EQ( runTool( "check --schema /no/such/schema.rng " + COMPLETE ).nExitCode, 2 );
}

TEST( Tool, PrintsWarningsWithTheirValuesOnOneLine ) {
    const TestDocument document = TestDocument().edit( Edit{ "Substitute=\"00\"", "Substitute=\"0&#10;0\"" } );
    const TemporaryFile file( document.getText() );
    const ToolResult result = runTool( "check " + file.getPath() + " --schema " + ANY_SCHEMA );
    EXPECT_EQ( result.nExitCode, 0 );
    EXPECT_EQ(
        result.strOutput,
        document.expand( "{file}:{line}: warning: "
                         "InternationalDialingSpecialCharacterSubstitute=\"0?0\": it must contain only digits; "
                         "011 is used [/pstnConfig/callControl/analog/analogFxoConfig/outboundCallHandling/dial]\n"
                         "{file}: valid (1 warning)\n",
                         file.getPath() ) );
}

TEST( Tool, CountsTheErrorsOfAFileThatLoadsAllTheSame ) {
    const TemporaryFile file( TestDocument().edit( Edit{ "sequence=\"", "sequence=\"a/b/c," } ).getText() );
    const ToolResult result = runTool( "check " + file.getPath() );
    EXPECT_EQ( result.nExitCode, 0 );
    EXPECT_NE( result.strOutput.find( file.getPath() + ": valid (2 errors)\n" ), std::string::npos );
}

TEST( Tool, WritesTheLogToStandardErrorWhenAsked ) {
    const ToolResult content = runTool( "check --log-content " + COMPLETE );
    EXPECT_EQ( content.strOutput, COMPLETE + ": valid\n" );
    EXPECT_NE( content.strErrors.find( "\n     3: <pstnConfig version=\"2.3\">\n" ), std::string::npos );
    EXPECT_EQ( content.strErrors.find( "DEBUG" ), std::string::npos );
    EXPECT_NE(
        runTool( "check --log-level debug " + COMPLETE ).strErrors.find( "adding new digital board: 1<E1 card>" ),
        std::string::npos );
}

TEST( Tool, TakesTheGatewaysParameters ) {
    const TemporaryFile parameters( "# the gateway\nmarovane.Installation.Directory=/opt/gateway\n" );
    EXPECT_EQ( runTool( "check --parameters " + parameters.getPath() + " " + COMPLETE ).nExitCode, 0 );
    EXPECT_EQ( runTool( "check --parameters /no/such/file " + COMPLETE ).nExitCode, 2 );
}

TEST( Tool, RefusesWrongUsage ) {
    for ( const char* const szArguments : { "", "check", "load x", "check --log-level LOUD x", "check --bad x" } ) {
        const ToolResult result = runTool( szArguments );
        EXPECT_EQ( result.nExitCode, 2 ) << szArguments;
        EXPECT_EQ( result.strOutput, "" );
        EXPECT_NE( result.strErrors, "" );
    }
    EXPECT_EQ( runTool( "--help" ).nExitCode, 0 );
}

} // namespace Velquin::Pstn::Test

#include <cstdio>

#include "ToolRun.h"

// The channel map: what its renderings say. browser/check_map tries the page in a browser.

namespace Velquin::Pstn::Test {

namespace {

/// Two groups on one timeslot, free ones, one in a range and outside of the line, and a name that must be escaped.
std::string getBusyDocument() {
    const std::string strHostile = "a&lt;b&gt; &amp;&quot;'&#x9b;2J&#x202e;&#10;";
    return TestDocument(
               { { "REVERSE_LINEAR\"/></channelGroups>",
                   "REVERSE_LINEAR\"/><channelGroup ID=\"" + strHostile + "\" direction=\"IN\"/></channelGroups>" },
                 { "lastChannel=\"15\"/>", "lastChannel=\"15\"/><BChannelRange channelGroupID=\"" + strHostile +
                                               "\" firstChannel=\"3\" lastChannel=\"5\"/>" },
                 { "\"both\" firstChannel=\"17\" lastChannel=\"31\"",
                   "\"both\" firstChannel=\"25\" lastChannel=\"4294967295\"" },
                 { "\"in\" firstChannel=\"1\" lastChannel=\"24\"", "\"in\" firstChannel=\"24\" lastChannel=\"1\"" } } )
        .getText();
}

/// What the tool writes into a file of that ending.
std::string drawMap( const std::string& in_strFile, const std::string& in_strEnding ) {
    const TemporaryFile temporary( "" );
    const std::string strOutput = temporary.getPath() + in_strEnding;
    EXPECT_EQ( runTool( "map " + in_strFile + " -o " + strOutput ).nExitCode, 0 );
    const std::string strMap = readFile( strOutput );
    std::remove( strOutput.c_str() );
    return strMap;
}

} // namespace

TEST( Map, ShowsWhatEachTimeslotIsFor ) {
    const TemporaryFile file( getBusyDocument() );
    const ToolResult result = runTool( "map " + file.getPath() );
    EXPECT_EQ( result.nExitCode, 0 );
    const std::string strName = std::filesystem::path( file.getPath() ).filename().string();
    EXPECT_EQ( result.strOutput, strName + readFile( DATA_FOLDER + "/map.txt" ) );
    EXPECT_NE( runTool( "map --color always " + COMPLETE ).strOutput.find( "\x1b[30;48;5;74mA\x1b[0m" ),
               std::string::npos );
}

TEST( Map, EscapesTheTextsOfTheFile ) {
    const TemporaryFile file( getBusyDocument() );
    const std::string strPicture = drawMap( file.getPath(), ".svg" );
    const std::string strPage = drawMap( file.getPath(), ".html" );
    for ( const std::string& strMap : { strPicture, strPage } ) {
        EXPECT_NE( strMap.find( "3 to 5: a&lt;b&gt; &amp;&quot;'?2J??" ), std::string::npos );
        EXPECT_EQ( strMap.find( "a<b" ), std::string::npos );
        EXPECT_EQ( strMap.find( "\xc2\x9b" ), std::string::npos );
    }
    xmlDoc* const pPicture =
        xmlReadMemory( strPicture.data(), static_cast<int>( strPicture.size() ), "", nullptr, XML_PARSE_NOERROR );
    EXPECT_NE( pPicture, nullptr );
    xmlFreeDoc( pPicture );
}

TEST( Map, StandsInTheDocumentation ) {
    for ( const std::string strExample : { "e1-trunks", "every-attribute" } ) {
        const std::string strPicture = EXAMPLES_FOLDER + "/../docs/images/map-" + strExample + ".svg";
        EXPECT_EQ( drawMap( EXAMPLES_FOLDER + "/" + strExample + ".xml", ".svg" ), readFile( strPicture ) )
            << "Draw it anew: pstnconfig map examples/" << strExample << ".xml -o docs/images/map-" << strExample
            << ".svg";
    }
}

TEST( Map, SaysWhyThereIsNone ) {
    const TemporaryFile invalid( TestDocument().edit( Edit{ "lastChannel=\"15\"", "lastChannel=\"x\"" } ).getText() );
    EXPECT_EQ( runTool( "map " + invalid.getPath() ).nExitCode, 1 );
    EXPECT_EQ( runTool( "map /no/such/file.xml" ).nExitCode, 2 );
    EXPECT_EQ( runTool( "map --schema /no/such/schema.rng " + COMPLETE ).nExitCode, 2 );

    const auto expectUsage = [&]( const std::string& in_strArguments, const std::string& in_strErrors ) {
        const ToolResult result = runTool( "map " + COMPLETE + in_strArguments );
        EXPECT_EQ( result.nExitCode, 2 );
        EXPECT_EQ( result.strOutput, "" );
        EXPECT_EQ( result.strErrors.substr( 0, result.strErrors.find( '\n' ) ), in_strErrors );
    };
    expectUsage( " -o map.png", "pstnconfig: --output: map.png: the name must end in .svg or .html" );
    expectUsage( " -o /no/such/folder/map.svg",
                 "pstnconfig: can't write /no/such/folder/map.svg: No such file or directory" );

    const std::string strDocument = readFile( COMPLETE );
    const TemporaryFile own( strDocument );
    const std::string strOwn = own.getPath() + ".svg";
    std::filesystem::rename( own.getPath(), strOwn );
    EXPECT_EQ( runTool( "map " + strOwn + " -o " + strOwn ).nExitCode, 2 );
    EXPECT_EQ( readFile( strOwn ), strDocument );
    std::filesystem::remove( strOwn );
}

} // namespace Velquin::Pstn::Test

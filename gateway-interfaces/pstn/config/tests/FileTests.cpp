#include <filesystem>
#include <fstream>

#if !defined( _WIN32 )
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

#include <velquin/GlobalConfig.h>

#include "ToolRun.h"

// What is opened as a file, under which names, and in which encodings.

namespace Velquin::Pstn::Test {

namespace fs = std::filesystem;

namespace {

/// A folder that ends with the object, and all that is in it.
class TemporaryFolder {
public:
    TemporaryFolder() { fs::create_directory( m_strPath ); }
    ~TemporaryFolder() { fs::remove_all( m_strPath ); }
    const std::string& getPath() const { return m_strPath; }

private:
    TemporaryFile m_name{ "" };
    std::string m_strPath = m_name.getPath() + ".d/";
};

constexpr const char* NO_FILE = "it is not a regular file";

#if defined( _WIN32 )
std::vector<std::pair<std::string, const char*>> makeIrregularFiles( const std::string& in_strFolder ) {
    return { { "NUL", NO_FILE },
             { "nul.xml", NO_FILE },
             { in_strFolder + "NUL", NO_FILE },
             { "CON", NO_FILE },
             { in_strFolder + "con .a.xml", NO_FILE },
             { in_strFolder + "Lpt1", NO_FILE },
             { "\\\\.\\NUL", NO_FILE },
             { "\\\\.\\C:", NO_FILE },
             { in_strFolder + "\xE4.xml", "its path is not in UTF-8" } };
}
#else
std::vector<std::pair<std::string, const char*>> makeIrregularFiles( const std::string& in_strFolder ) {
    EXPECT_EQ( mkfifo( ( in_strFolder + "fifo" ).c_str(), 0600 ), 0 );
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ( in_strFolder + "socket" ).copy( address.sun_path, sizeof( address.sun_path ) - 1 );
    const int nSocket = socket( AF_UNIX, SOCK_STREAM, 0 );
    EXPECT_EQ( bind( nSocket, reinterpret_cast<const sockaddr*>( &address ), sizeof( address ) ), 0 );
    close( nSocket ); // its name stays
    fs::create_symlink( "/dev/zero", in_strFolder + "link" );
    fs::create_symlink( "circle", in_strFolder + "circle" );
    std::ofstream( in_strFolder + "secret" ) << "<a/>";
    fs::permissions( in_strFolder + "secret", fs::perms::none );
    std::vector<std::pair<std::string, const char*>> vecPaths{
        { in_strFolder + "fifo", NO_FILE }, { in_strFolder + "socket", NO_FILE },
        { in_strFolder + "link", NO_FILE }, { "/dev/zero", NO_FILE },
        { "/dev/full", NO_FILE },           { in_strFolder + "circle", "Too many levels of symbolic links" } };
    if ( geteuid() != 0 ) // who may read everything
        vecPaths.emplace_back( in_strFolder + "secret", "Permission denied" );
    return vecPaths;
}
#endif

/// The complete document in another encoding, with bytes of that encoding as a name.
std::string encode( const std::string& in_strEncoding, const std::string& in_strName ) {
    std::string strText = TestDocument().edit( Edit{ "/tirvanaDigitalConfig", "displayName=\"@\"" } ).getText();
    strText.replace( strText.find( "UTF-8" ), 5, in_strEncoding );
    return strText.replace( strText.find( '@' ), 1, in_strName );
}

} // namespace

TEST( Files, ThatAreNoRegularFilesAreNotOpened ) {
    const TemporaryFolder folder;
    auto vecPaths = makeIrregularFiles( folder.getPath() );
    vecPaths.emplace_back( folder.getPath(), NO_FILE );
    vecPaths.emplace_back( folder.getPath() + "none", "No such file or directory" );
    for ( const auto& path : vecPaths ) {
        const std::string& strPath = path.first;
        XmlConfig config;
        const std::string strCause =
            std::string( "ERROR XmlConfig: Can't read, " ) + path.second + " in file " + strPath + ".";
        EXPECT_EQ( join( load( config, strPath, SCHEMA ).vecLines ),
                   join( { strCause, "ERROR XmlConfig: failed to parse XML file " + strPath } ) );
        EXPECT_EQ( join( load( config, COMPLETE, strPath ).vecLines ),
                   join( { strCause, "ERROR XmlConfig: Failed to parse RelaxNG schema file " + strPath } ) );
        EXPECT_EQ( join( captureLines( [&] { config.load( strPath.c_str(), SCHEMA, true ); } ) ),
                   join( { "ERROR XmlConfig: failed to open PSTN configuration file: " + strPath } ) );
        const auto vecLines = captureLines( [&] { GlobalConfig::getInstance().loadFile( strPath.c_str() ); } );
        ASSERT_EQ( vecLines.size(), 1U );
        EXPECT_TRUE( vecLines[0].ends_with( strPath + " can't be read: " + path.second ) ) << vecLines[0];
    }
}

TEST( Files, HaveNamesInUtf8 ) {
    const TemporaryFolder folder;
    const std::string strName = folder.getPath() + "Größe ☎.xml";
    std::ofstream( toPath( strName ), std::ios::binary )
        << TestDocument().edit( Edit{ "/fasConfig", "-ID" } ).getText();
    XmlConfig config;
    const LoadResult result = load( config, strName, SCHEMA );
    ASSERT_FALSE( result.vecLines.empty() );
    EXPECT_NE( result.vecLines[0].find( " in file " + strName + " at line " ), std::string::npos );
    fs::copy_file( EXAMPLES_FOLDER + "/branch-office.xml", toPath( strName ), fs::copy_options::overwrite_existing );
    EXPECT_TRUE( load( config, strName, SCHEMA ).bValid );

    EXPECT_EQ( runTool( "check \"" + strName + "\"" ).strOutput, strName + ": valid\n" );
    const std::string strMap = folder.getPath() + "☎.svg";
    EXPECT_EQ( runTool( "map \"" + strName + "\" -o \"" + strMap + "\"" ).nExitCode, 0 );
    EXPECT_TRUE( fs::is_regular_file( toPath( strMap ) ) );
    const TemporaryFile parameters( "marovane.pstn.config.file=" + strName + "\n" );
    EXPECT_NE(
        runTool( "check --parameters " + parameters.getPath() + " --schema " + SCHEMA ).strOutput.find( strName ),
        std::string::npos );
}

TEST( Files, AreReadInTheEncodingsOfOperators ) {
    const std::vector<std::vector<std::string>> vecNames{
        { "windows-1252",
          "Gr\xF6\xDF"
          "e \x80",
          "Größe €" },
        { "CP1251", "\xC4\xE0", "Да" },
        { "windows-1253", "\xC1\xFE", "Αώ" },
        { "windows-874", "\xA1\xFB", "ก๛" },
        { "Shift_JIS", "\x93\x64\x98\x62\xB6\\~\x81\x60", "電話ｶ¥‾〜" },
        { "windows-31J", "\x93\x64\\\x87\x40", "電\\①" },
        { "GBK", "\xB5\xE7\xBB\xB0", "电话" },
        { "GB2312", "\xB5\xE7\xBB\xB0\xA1\xA4\xA1\xAA", "电话・―" },
        { "Big5", "\xB9\x71\xB8\xDC\xC6\xA1", "電話\uF6B1" },
        { "EUC-KR", "\xC0\xFC\xC8\xAD", "전화" },
        { "KOI8-R", "\xE4\xC1\x80", "Да─" },
        { "KOI8-U", "\xA4\xAE\xBE", "є╝╬" } };
    for ( const auto& vecName : vecNames ) {
        SCOPED_TRACE( vecName[0] );
        const auto describe = [&]( const std::string& in_strText ) {
            const TemporaryFile file( in_strText );
            XmlConfig config;
            EXPECT_EQ( join( load( config, file.getPath(), ANY_SCHEMA ).vecLines ), "" );
            return describeLines( config );
        };
        EXPECT_EQ( describe( encode( vecName[0], vecName[1] ) ), describe( encode( "UTF-8", vecName[2] ) ) );
        // libxml2 takes the file in pieces, which end at any byte of a character.
        for ( const std::string strBlanks : { "", " ", "  " } ) {
            std::string strLong = strBlanks, strLongUtf8 = strBlanks;
            for ( int n = 0; n < 20000; ++n ) {
                strLong += vecName[1];
                strLongUtf8 += vecName[2];
            }
            EXPECT_EQ( describe( encode( vecName[0], strLong ) ), describe( encode( "UTF-8", strLongUtf8 ) ) );
        }
    }
}

// Newer versions of libxml2 read windows-1252 by themselves, and take each byte.
TEST( Files, WithBytesThatTheirEncodingLacksAreRefused ) {
    const std::pair<std::string, std::string> aFiles[] = {
        { "windows-1253", "\xAA" },    { "windows-1255", "\xD9" }, { "windows-1255", "\xCA" },
        { "Shift_JIS", "\x87\x40" },   { "GBK", "\xA1\x40" },      { "GB2312", "\xA2\xA1" },
        { "GB2312", "\x80" },          { "GB2312", "\xFE\xFE" },   { "EUC-KR", "\xC9\xA1" },
        { "windows-31J", "\x81\x20" }, { "UHC", "\xFE\xFE" },      { "Big5", "\x81\x40" },
        { "EUC-KR", "\xFF" },          { "no-such-encoding", "a" } };
    for ( const auto& [strEncoding, strBytes] : aFiles ) {
        const TemporaryFile file( encode( strEncoding, strBytes ) );
        XmlConfig config;
        const LoadResult result = load( config, file.getPath(), ANY_SCHEMA );
        EXPECT_FALSE( result.bValid ) << strEncoding;
        EXPECT_FALSE( result.vecLines.empty() ) << strEncoding;
    }
}

} // namespace Velquin::Pstn::Test

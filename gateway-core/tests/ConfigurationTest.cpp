#include "LogCapture.h"

#include <cstdio>
#include <fstream>
#include <future>
#include <iterator>
#include <set>

#include <gmock/gmock.h>

#include <velquin/GlobalConfig.h>
#include <velquin/InputFile.h>
#include <velquin/Media/Format.h>
#include <velquin/ParameterInfoDB.h>
#include <velquin/Priority.h>

namespace Velquin::Test {
namespace {

/// "absent" for a parameter that is absent.
std::string get( const char* in_szName ) {
    std::string strValue = "absent";
    GlobalConfig::getInstance().getString( in_szName, strValue );
    return strValue;
}

TEST( GlobalConfig, AFileReplacesWhatItNames ) {
    GlobalConfig& config = GlobalConfig::getInstance();
    config.setString( "test.kept", "kept" );
    config.setString( "test.replaced", "old" );
    config.setString( "test.removed", "old" );
    config.remove( "test.removed" );
    const std::string strPath = testing::TempDir() + "velquin-core-test.properties";
    std::ofstream( strPath ) << "# test.comment=1\ntest.replaced = new \r\n\ntest.equals=a=b\ntest.empty=\ntest.none\n"
                             << "include " << strPath << "\n\tinclude a=b\n";
    const LogCapture log;
    EXPECT_TRUE( config.loadFile( strPath.c_str() ) );
    std::remove( strPath.c_str() );
    EXPECT_THAT( log.getRecords(), testing::IsEmpty() );
    const char* const aExpected[][2] = {
        { "test.kept", "kept" },      { "test.replaced", "new" },   { "test.equals", "a=b" },  { "test.empty", "" },
        { "test.removed", "absent" }, { "test.comment", "absent" }, { "test.none", "absent" },
    };
    for ( const auto& [szName, szValue] : aExpected )
        EXPECT_EQ( get( szName ), szValue ) << szName;
}

TEST( GlobalConfig, RefusesWhatIsNoFile ) {
    for ( const std::string& strPath : { testing::TempDir() + "velquin-core-no-such-file", testing::TempDir() } ) {
        const LogCapture log;
        EXPECT_FALSE( GlobalConfig::getInstance().loadFile( strPath.c_str() ) );
        ASSERT_EQ( log.getRecords( 40000 ).size(), 1u ) << strPath;
        EXPECT_EQ( log.getRecords()[0].strLogger, "marovane.core.GlobalConfig" );
        EXPECT_THAT( log.getRecords()[0].strMessage, testing::HasSubstr( strPath ) );
    }
}

TEST( GlobalConfig, AsksForNamesAndLeavesAloneWhatItLacks ) {
    GlobalConfig& config = GlobalConfig::getInstance();
    std::string strValue = "mine";
    const LogCapture log;
    EXPECT_FALSE( config.getString( "test.no-such-parameter", strValue ) );
    config.remove( "test.no-such-parameter" );
    EXPECT_THAT( log.getRecords(), testing::IsEmpty() );
    EXPECT_FALSE( config.getString( nullptr, strValue ) );
    config.setString( nullptr, "value" );
    config.setString( "test.without-value", nullptr );
    config.remove( nullptr );
    EXPECT_EQ( log.getRecords( 40000 ).size(), 4u );
    EXPECT_EQ( strValue + get( "test.without-value" ), "mineabsent" );
}

// A reader gets the old value or the new one, never a mixture, and never none.
TEST( GlobalConfig, ThreadsReadWhatOthersSet ) {
    GlobalConfig& config = GlobalConfig::getInstance();
    const std::string aValues[] = { std::string( 100, 'a' ), std::string( 3000, 'b' ) };
    config.setString( "test.shared", aValues[0].c_str() );
    std::vector<std::future<std::set<std::string>>> vecThreads;
    for ( int nThread = 0; nThread < 8; ++nThread )
        vecThreads.push_back( std::async( std::launch::async, [&config, &aValues, nThread] {
            std::set<std::string> setRead;
            const std::string strOwn = "test.own." + std::to_string( nThread );
            for ( int nRound = 0; nRound < 500; ++nRound ) {
                if ( nThread < 2 )
                    config.setString( "test.shared", aValues[nRound % 2].c_str() );
                config.setString( strOwn.c_str(), "own" );
                setRead.insert( get( strOwn.c_str() ) == "own" ? get( "test.shared" ) : "lost" );
                config.remove( strOwn.c_str() );
            }
            return setRead;
        } ) );
    for ( auto& thread : vecThreads )
        EXPECT_THAT( thread.get(), testing::Each( testing::AnyOf( aValues[0], aValues[1] ) ) );
}

TEST( ParameterInfoDB, OneOfManyThreadsDeclaresAParameter ) {
    ParameterInfoDB& db = ParameterInfoDB::getNonConstInstance();
    std::vector<std::future<int>> vecThreads;
    for ( int nThread = 0; nThread < 8; ++nThread )
        vecThreads.push_back( std::async( std::launch::async, [&db] {
            int nDeclared = 0;
            for ( int n = 0; n < 50; ++n ) {
                const std::string strName = "test.thread." + std::to_string( n );
                nDeclared += db.addParameter( strName.c_str(), ParameterInfoDB::KIND_STRING, true, true, true, "" );
                nDeclared += db.getParameters().empty() ? 1000 : 0;
            }
            return nDeclared;
        } ) );
    int nDeclared = 0;
    for ( auto& thread : vecThreads )
        nDeclared += thread.get();
    EXPECT_EQ( nDeclared, 50 );
    const LogCapture log;
    EXPECT_FALSE( db.addParameter( nullptr, ParameterInfoDB::KIND_STRING, true, true, true, "" ) ||
                  db.addParameter( "test.undescribed", ParameterInfoDB::KIND_STRING, true, true, true, nullptr ) );
    EXPECT_EQ( log.getRecords( 40000 ).size(), 2u );
}

TEST( ParameterInfoDB, TheFirstDeclarationStays ) {
    ParameterInfoDB& db = ParameterInfoDB::getNonConstInstance();
    EXPECT_TRUE( db.addParameter( "test.z", ParameterInfoDB::KIND_STRING, true, false, true, "first" ) );
    EXPECT_TRUE( db.addParameter( "test.b", ParameterInfoDB::KIND_STRING, false, true, false, "second" ) );
    EXPECT_FALSE( db.addParameter( "test.z", ParameterInfoDB::KIND_STRING, false, false, false, "other" ) );
    auto vecParameters = db.getParameters();
    std::erase_if( vecParameters, []( const auto& in_one ) { return in_one.strName.starts_with( "test.thread." ); } );
    ASSERT_EQ( vecParameters.size(), 2u );
    EXPECT_EQ( vecParameters[0].strName + ' ' + vecParameters[0].strDescription, "test.z first" );
    EXPECT_TRUE( vecParameters[0].bRequired && !vecParameters[0].bReadOnly && vecParameters[0].bHidden );
}

TEST( InputFile, GivesBytesAsTheyStand ) {
    const std::string strPath = testing::TempDir() + "velquin-core-bytes";
    const std::string strBytes( "a\r\n\x1a\0\xff\n", 7 );
    std::ofstream( strPath, std::ios::binary ) << strBytes;
    std::ifstream stream;
    EXPECT_EQ( openInputFile( strPath.c_str(), stream ), "" );
    EXPECT_EQ( std::string( std::istreambuf_iterator<char>( stream ), {} ), strBytes );
    stream.close();
    std::remove( strPath.c_str() );
    EXPECT_NE( openInputFile( strPath.c_str(), stream ), "" );
    EXPECT_FALSE( stream.is_open() );
}

TEST( Format, IsUnknownUntilItIsMade ) {
    Media::Format format;
    EXPECT_EQ( format.getType(), Media::Format::UNKNOWN );
    format.initFrom( Media::Format::PCMA );
    EXPECT_EQ( format.getType(), Media::Format::PCMA );
    EXPECT_NE( format, Media::Format() );
}

TEST( Priority, NamesAndCodes ) {
    const std::pair<const char*, int> aCases[] = { { "LOWEST", 0 },  { "LOW", 1 }, { "NORMAL", 2 },  { "HIGH", 3 },
                                                   { "HIGHEST", 4 }, { "", -1 },   { "normal", -1 }, { "LOWES", -1 } };
    for ( const auto& [szName, nCode] : aCases ) {
        const Priority priority{ std::string( szName ) };
        EXPECT_EQ( priority.getCode(), nCode ) << szName;
        EXPECT_EQ( priority.isValid(), nCode >= 0 ) << szName;
        EXPECT_STREQ( priority.getName(), nCode >= 0 ? szName : "" );
    }
    EXPECT_EQ( Priority(), Priority::NORMAL );
    EXPECT_EQ( Priority::getSupportedPrioritiesDescription(), "LOWEST, LOW, NORMAL, HIGH, HIGHEST" );
}

} // namespace
} // namespace Velquin::Test

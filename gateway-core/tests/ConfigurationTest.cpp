#include "LogCapture.h"

#include <cstdio>
#include <fstream>

#include <gmock/gmock.h>

#include <velquin/GlobalConfig.h>
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

TEST( ParameterInfoDB, TheFirstDeclarationStays ) {
    ParameterInfoDB& db = ParameterInfoDB::getNonConstInstance();
    EXPECT_TRUE( db.addParameter( "test.z", ParameterInfoDB::KIND_STRING, true, false, true, "first" ) );
    EXPECT_TRUE( db.addParameter( "test.b", ParameterInfoDB::KIND_STRING, false, true, false, "second" ) );
    EXPECT_FALSE( db.addParameter( "test.z", ParameterInfoDB::KIND_STRING, false, false, false, "other" ) );
    const auto vecParameters = db.getParameters();
    ASSERT_EQ( vecParameters.size(), 2u );
    EXPECT_EQ( vecParameters[0].strName + ' ' + vecParameters[0].strDescription, "test.z first" );
    EXPECT_TRUE( vecParameters[0].bRequired && !vecParameters[0].bReadOnly && vecParameters[0].bHidden );
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

#include <ctime>
#include <filesystem>
#include <fstream>
#include <regex>

#include "ConfigTest.h"

// Files made to harm: each is refused with clear lines, or loads, in a time and a memory that its own size bounds.

#if defined( _WIN32 ) // see cmake/not-on-windows.txt
#define COSTS_ARE_NOT_OURS
#endif
#if defined( __has_feature )
#if __has_feature( address_sanitizer ) || __has_feature( thread_sanitizer )
#define COSTS_ARE_NOT_OURS
#endif
#endif
#if defined( __SANITIZE_ADDRESS__ ) || defined( __SANITIZE_THREAD__ )
#define COSTS_ARE_NOT_OURS
#endif

namespace Velquin::Pstn::Test {

namespace fs = std::filesystem;

namespace {

struct HostileCase {
    std::string strName;
    std::size_t uMemory = 0;
    std::string strEncoding;
    std::string strTemplate;
    std::vector<std::string> vecLines;
};

std::vector<HostileCase> readHostileCases() {
    std::vector<HostileCase> vecCases;
    for ( Record& record : readRecords( "cases/hostile.files", "<>" ) ) {
        if ( record.vecWords.back() == "parse" ) {
            record.mapLines['>'].push_back( "ERROR XmlConfig: failed to parse XML file {file}" );
            record.vecWords.pop_back();
        }
        record.vecWords.resize( 4 );
        const std::string strTemplate = join( record.mapLines['<'] );
        vecCases.push_back( { record.vecWords[1], std::stoul( record.vecWords[2] ), record.vecWords[3],
                              strTemplate.substr( 0, strTemplate.size() - 1 ), record.mapLines['>'] } );
    }
    return vecCases;
}

std::string generate( const HostileCase& in_case ) {
    unsigned long uFloodDivisor = 1;
#ifdef COSTS_ARE_NOT_OURS // a tenth of a flood is a flood, too, and saves a minute under the address sanitizer
    if ( in_case.strName.starts_with( "Flood" ) )
        uFloodDivisor = 10;
#endif
    static const std::regex s_regex( R"(\{(\d+)\*([^{}]*)\}|\{end\}|\\x([0-9a-f]{2}))" );
    const std::function<std::string( const std::string& )> expand = [&]( const std::string& in_strTemplate ) {
        std::string strAll;
        std::string strRest = in_strTemplate;
        for ( std::smatch match; std::regex_search( strRest, match, s_regex ); strRest = match.suffix().str() ) {
            strAll += match.prefix();
            if ( match[3].matched ) {
                strAll += static_cast<char>( std::stoi( match[3], nullptr, 16 ) );
            } else if ( !match[1].matched ) {
                strAll += "<callControl><channelGroups/></callControl></pstnConfig>";
            } else {
                const std::string strText = expand( match[2] );
                const unsigned long uTimes = std::stoul( match[1] ) / uFloodDivisor;
                for ( unsigned long u = 0; u < uTimes; ++u ) {
                    for ( const char c : strText )
                        strAll += c == '#' ? std::to_string( u ) : std::string( 1, c );
                }
            }
        }
        return strAll + strRest;
    };
    const std::string strText = expand( in_case.strTemplate );
    if ( in_case.strEncoding.empty() )
        return strText;
    const bool bBigEndian = in_case.strEncoding == "utf16be";
    std::string strWide = bBigEndian ? "\xfe\xff" : "\xff\xfe";
    for ( const char c : strText )
        strWide.append( bBigEndian ? std::string{ '\0', c } : std::string{ c, '\0' } );
    return strWide;
}

/// What an operation takes of processor and memory.
class Cost {
public:
    Cost() { std::ofstream( "/proc/self/clear_refs" ) << 5; } // the peak begins anew
    double getSeconds() const { return static_cast<double>( std::clock() - m_begin ) / CLOCKS_PER_SEC; }
    std::size_t getPeakBytes() const { return getBytes( "VmHWM:" ) - std::min( m_uBefore, getBytes( "VmHWM:" ) ); }

private:
    static std::size_t getBytes( const std::string& in_strWhat ) {
        std::ifstream status( "/proc/self/status" );
        for ( std::string strWord; status >> strWord; ) {
            std::size_t uKilobytes = 0;
            if ( strWord == in_strWhat && status >> uKilobytes )
                return uKilobytes * 1024;
        }
        return 0;
    }

    std::clock_t m_begin = std::clock();
    std::size_t m_uBefore = getBytes( "VmRSS:" );
};

void expectBounded( [[maybe_unused]] const Cost& in_cost, [[maybe_unused]] std::size_t in_uBytes,
                    [[maybe_unused]] std::size_t in_uMemory ) {
#ifndef COSTS_ARE_NOT_OURS
    // The slowest file takes 0.6 us a byte on a quiet machine and twice that on a busy one. Work that grows with the
    // square of the file would take minutes.
    EXPECT_LT( in_cost.getSeconds(), 4 + 2e-6 * static_cast<double>( in_uBytes ) );
    EXPECT_LT( in_cost.getPeakBytes(), 4000000 + in_uMemory * in_uBytes );
#endif
}

} // namespace

TEST( HostileFiles, EndInClearLinesAndBoundedCost ) {
    for ( const HostileCase& one : readHostileCases() ) {
        SCOPED_TRACE( one.strName );
        const TemporaryFile file( generate( one ) );
        const std::size_t uBytes = fs::file_size( file.getPath() );
        testing::internal::CaptureStderr();
        const Cost cost;
        LoadResult result = load( *std::make_unique<XmlConfig>(), file.getPath(), SCHEMA );
        expectBounded( cost, uBytes, one.uMemory );
        EXPECT_EQ( result.bValid, one.vecLines.empty() );
        EXPECT_EQ( result.vecLines.empty(), one.vecLines.empty() );
        std::vector<std::string> vecExpected;
        for ( const std::string& strLine : one.vecLines )
            vecExpected.push_back( TestDocument( "" ).expand( strLine, file.getPath() ) );
        takeWordsOfLibXml2( vecExpected, result.vecLines );
        for ( std::size_t u = 0; u < vecExpected.size() && u < result.vecLines.size(); ++u )
            EXPECT_EQ( result.vecLines[u].substr( 0, vecExpected[u].size() ), vecExpected[u] );
        if ( one.strName != "FloodOfFaultsToCrossCheck" ) { // there each interface has its line
            EXPECT_LT( result.vecLines.size(), 500U );
        }

        const Cost costAsSchema;
        XmlConfig config;
        result = load( config, COMPLETE, file.getPath() );
        expectBounded( costAsSchema, uBytes, 2 * one.uMemory ); // libxml2 compiles a copy
        EXPECT_FALSE( result.bValid );
        EXPECT_FALSE( result.vecLines.empty() );
        EXPECT_EQ( testing::internal::GetCapturedStderr(), "" );
    }
}

TEST( HostileFiles, TruncatedAnywhereAreRefusedWithALine ) {
    const std::string strText = readFile( EXAMPLES_FOLDER + "/e1-trunks.xml" );
    const TemporaryFile file( strText );
    for ( std::size_t uEnd = strText.rfind( '>' ), u = uEnd + 2; u-- > 0; ) {
        fs::resize_file( file.getPath(), u );
        XmlConfig config;
        const LoadResult result = load( config, file.getPath() );
        ASSERT_EQ( result.bValid, u > uEnd ) << u;
        const std::string strPlace = " in file " + file.getPath() + " at line ";
        ASSERT_TRUE( result.bValid || result.vecLines.at( 0 ).find( strPlace ) != std::string::npos ) << u;
    }
}

} // namespace Velquin::Pstn::Test

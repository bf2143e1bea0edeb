#include <atomic>
#include <thread>

#include "ConfigTest.h"
#include "survey/Survey.h"

// A loaded model that many threads read at once, and loads at the same time; the thread sanitizer watches.

namespace Velquin::Pstn::Test {

TEST( Threads, ReadAModelWhoseConfigurationIsLetGo ) {
    auto pConfig = std::make_unique<XmlConfig>();
    loadValid( *pConfig, TestDocument() );
    const auto mapBoards = pConfig->getDigitalBoardsConfig();
    std::vector<TSHandle<DigitalInterfaceConfig>> vecInterfaces;
    for ( const auto& [uId, hBoard] : mapBoards ) {
        std::vector<TSHandle<DigitalInterfaceConfig>> vecOfBoard;
        ASSERT_TRUE( hBoard->getDigitalInterfacesConfig( vecOfBoard ) );
        vecInterfaces.insert( vecInterfaces.end(), vecOfBoard.begin(), vecOfBoard.end() );
    }
    const auto hCallControl = pConfig->getCallControlConfig();

    std::atomic<unsigned int> uReady{ 0 };
    std::atomic<unsigned long> uDChannels{ 0 };
    const auto read = [&, hCallControl] {
        ++uReady;
        for ( int n = 0; n < 200; ++n ) {
            auto vecCopies = vecInterfaces;
            for ( const auto& hInterface : vecCopies ) {
                const auto hPhysical = hInterface->getPhysicalConfig();
                uDChannels += hInterface->hasDChannel() && *hInterface->getUniqueId( n % 2 == 0 ) == 'b' ? 1U : 0U;
            }
            for ( const auto& [strId, hGroup] : hCallControl->getChannelGroupsConfig() ) {
                for ( const auto& hRange : hGroup->getBChannelRangeConfig() ) {
                    const auto hCopy = hRange;
                }
            }
        }
    };
    std::vector<std::thread> vecThreads;
    for ( int n = 0; n < 8; ++n )
        vecThreads.emplace_back( read );
    while ( uReady < 8 )
        std::this_thread::yield();
    pConfig.reset();
    for ( std::thread& thread : vecThreads )
        thread.join();
    // Five of the six spans have a D-channel.
    EXPECT_EQ( uDChannels, 8UL * 200 * 5 );
}

TEST( Threads, LoadConfigurationsOfTheirOwn ) {
    const TemporaryFile file( TestDocument().getText() );
    std::atomic<unsigned int> uLoaded{ 0 };
    std::vector<std::thread> vecThreads;
    for ( int n = 0; n < 8; ++n )
        vecThreads.emplace_back( [&] {
            XmlConfig config;
            uLoaded += config.load( file.getPath().c_str(), SCHEMA, false ) ? 1U : 0U;
        } );
    for ( std::thread& thread : vecThreads )
        thread.join();
    EXPECT_EQ( uLoaded, 8U );
}

// Each thread surveys files with other mistakes, and hears of those only.
TEST( Threads, SurveyFilesOfTheirOwn ) {
    const auto describe = []( const std::string& in_strText ) {
        const TemporaryFile file( in_strText );
        Survey survey;
        std::string strFound = survey.run( file.getPath().c_str(), SCHEMA ) ? "loads\n" : "fails\n";
        for ( const Finding& finding : survey.getFindings() ) {
            if ( finding.span.ullLine == 0 )
                continue; // about the file, which it names
            strFound += std::to_string( finding.span.ullLine ) + ( finding.bEcho ? " echo " : " " ) + finding.strRule +
                        " " + describeFinding( finding ) + "\n";
        }
        return strFound;
    };
    std::vector<std::string> vecTexts;
    std::vector<std::string> vecExpected;
    for ( const Record& record : readRecords( "five.rows", "@>" ) ) {
        vecTexts.push_back( TestDocument( record.vecEdits ).getText() );
        vecTexts.push_back( vecTexts.back().substr( 0, vecTexts.back().size() / 2 ) ); // ill-formed
    }
    for ( const std::string& strText : vecTexts )
        vecExpected.push_back( describe( strText ) );
    EXPECT_GE( std::set<std::string>( vecExpected.begin(), vecExpected.end() ).size(), 10U );
    std::vector<std::vector<std::string>> vecFound( 8, std::vector<std::string>( vecTexts.size() ) );
    std::vector<std::thread> vecThreads;
    for ( std::size_t uThread = 0; uThread < vecFound.size(); ++uThread )
        vecThreads.emplace_back( [&, uThread] {
            for ( std::size_t u = 0; u < vecTexts.size(); ++u ) {
                const std::size_t uText = ( u + uThread * 3 ) % vecTexts.size();
                vecFound[uThread][uText] = describe( vecTexts[uText] );
            }
        } );
    for ( std::thread& thread : vecThreads )
        thread.join();
    for ( const auto& vecOfThread : vecFound )
        EXPECT_EQ( vecOfThread, vecExpected );
}

} // namespace Velquin::Pstn::Test

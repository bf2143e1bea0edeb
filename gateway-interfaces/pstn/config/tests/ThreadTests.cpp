#include <atomic>
#include <thread>

#include "ConfigTest.h"

// A loaded model that many threads read at once; the thread sanitizer watches.

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

} // namespace Velquin::Pstn::Test

#include <future>
#include <numeric>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <velquin/LimitedObjPtr.h>
#include <velquin/Object.h>
#include <velquin/TSHandle.h>
#include <velquin/UniqueObjPtr.h>

namespace Velquin::Test {
namespace {

int s_nAlive = 0;

struct Thing : virtual Object {
    Thing() { ++s_nAlive; }
    ~Thing() override { --s_nAlive; }
};
struct SpecialThing : Thing {};

// A handle becomes one of a base or of a constant object by itself, and never the reverse.
template <class TFrom, class TTo>
constexpr bool BECOMES = std::is_convertible_v<TSHandle<TFrom>, TSHandle<TTo>>;
static_assert( BECOMES<SpecialThing, Thing> && BECOMES<Thing, const Thing> && BECOMES<SpecialThing, const Object> );
static_assert( !BECOMES<Thing, SpecialThing> && !BECOMES<const Thing, Thing> && !BECOMES<Thing, int> );
static_assert( !std::is_convertible_v<Thing*, TSHandle<Thing>> && !std::is_convertible_v<Thing*, UniqueObjPtr<Thing>> );
static_assert( std::is_convertible_v<LimitedObjPtr<SpecialThing>, LimitedObjPtr<const Thing>> &&
               !std::is_convertible_v<LimitedObjPtr<const Thing>, LimitedObjPtr<Thing>> );
// A container may move handles and owners where it would otherwise copy or lose them.
static_assert( std::is_nothrow_move_constructible_v<TSHandle<Thing>> &&
               std::is_nothrow_copy_assignable_v<TSHandle<Thing>> );
static_assert( !std::is_copy_constructible_v<UniqueObjPtr<Thing>> &&
               std::is_nothrow_move_assignable_v<UniqueObjPtr<Thing>> );

TEST( TSHandle, TheLastHandleDeletes ) {
    TSHandle<SpecialThing> hSpecial( new SpecialThing() );
    const LimitedObjPtr<const Thing> pThing( hSpecial.get() );
    TSHandle<Object> hBase( hSpecial );
    TSHandle<SpecialThing> hMoved( std::move( hSpecial ) );
    EXPECT_TRUE( hSpecial.isNull() ); // NOLINT(bugprone-use-after-move): what a move leaves is promised
    const TSHandle<SpecialThing>& hSame = hMoved;
    hMoved = hSame;
    hMoved = nullptr;
    EXPECT_EQ( dynamicHandleCast<SpecialThing>( hBase ).get(), pThing.get() );
    hSpecial = dynamicHandleCast<SpecialThing>( hBase );
    hBase = TSHandle<Object>( new Thing() );
    EXPECT_EQ( s_nAlive, 2 );
    hSpecial = dynamicHandleCast<SpecialThing>( hBase );
    EXPECT_TRUE( hSpecial.isNull() );
    EXPECT_EQ( s_nAlive, 1 );
    hBase = nullptr;
    EXPECT_EQ( s_nAlive, 0 );
}

TEST( TSHandle, ThreadsShareOneObject ) {
    constexpr unsigned int THREADS = 8;
    constexpr unsigned int ROUNDS = 2000;
    // Written by each thread without a lock and read by the one that deletes: a release that isn't ordered is a race.
    struct Shared {
        ~Shared() { uSum += std::accumulate( aRounds, aRounds + THREADS, 0u ); }
        unsigned int& uSum;
        unsigned int aRounds[THREADS] = {};
    };
    unsigned int uSum = 0;
    {
        TSHandle<Shared> hShared( new Shared{ uSum } );
        // No std::latch: seen under Wine, libstdc++ 12 loses its wake-up about once in 1,000 times.
        std::promise<void> start;
        const std::shared_future<void> started = start.get_future().share();
        std::vector<std::jthread> vecThreads;
        for ( unsigned int u = 0; u < THREADS; ++u ) {
            vecThreads.emplace_back( [u, started, hOwn = hShared] {
                started.wait();
                for ( unsigned int uRound = 0; uRound < ROUNDS; ++uRound ) {
                    const TSHandle<Shared> hCopy( hOwn );
                    const TSHandle<const Shared> hOther( hCopy );
                    ++hCopy->aRounds[u];
                }
            } );
        }
        hShared = nullptr;
        start.set_value();
    }
    EXPECT_EQ( uSum, THREADS * ROUNDS );
}

TEST( TSHandle, SharesOnlyWhatIsThere ) {
    TSReferenceCount count;
    count.increment();
    EXPECT_EQ( count.getCount(), 2u );
    EXPECT_FALSE( count.decrement() );
    EXPECT_TRUE( count.decrement() );

    TSHandle<Thing> hThing( new Thing() );
    TSHandle<Thing> hNothing( static_cast<Thing*>( nullptr ) );
    EXPECT_TRUE( hNothing.isNull() && hNothing == TSHandle<Thing>() && hNothing != hThing );
    EXPECT_TRUE( dynamicHandleCast<SpecialThing>( hNothing ).isNull() );
    hThing.swap( hNothing );
    hThing = nullptr;
    EXPECT_EQ( s_nAlive, 1 );
    hNothing = TSHandle<Thing>( static_cast<Thing*>( nullptr ) );
    EXPECT_EQ( s_nAlive, 0 );
}

TEST( UniqueObjPtr, DeletesUnlessReleased ) {
    UniqueObjPtr<Thing> pThing = dynamicOwnerCast<Thing>( UniqueObjPtr<Object>( new Thing() ) );
    EXPECT_FALSE( pThing.isNull() );
    EXPECT_EQ( s_nAlive, 1 );
    EXPECT_TRUE( dynamicOwnerCast<SpecialThing>( std::move( pThing ) ).isNull() );
    EXPECT_EQ( s_nAlive, 0 );
    UniqueObjPtr<Thing> pReleased( new Thing() );
    const TSHandle<Thing> hOwner( pReleased.release() );
    EXPECT_TRUE( pReleased.isNull() );
    EXPECT_EQ( s_nAlive, 1 );
}

} // namespace
} // namespace Velquin::Test

#include "EndOfMemory.h"
#include "LogCapture.h"

#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include <velquin/Finding.h>
#include <velquin/MemAccount.h>
#include <velquin/Object.h>
#include <velquin/TSHandle.h>

namespace Velquin::Test {

class Booked : public virtual Object {
    VELQUIN_MEM_ACCOUNT( Booked );

public:
    explicit Booked( bool in_bThrows = false ) {
        if ( in_bThrows )
            throw std::runtime_error( "constructor" );
    }
};
class BookedChild : public Booked {
    VELQUIN_MEM_ACCOUNT( BookedChild );
    VELQUIN_LOGGER();

public:
    char m_aFilling[100] = {};
};
VELQUIN_MEM_ACCOUNT_IMPL( Booked, "Test.Booked" );
VELQUIN_MEM_ACCOUNT_IMPL( BookedChild, "Test.BookedChild" );
VELQUIN_LOGGER_IMPL( BookedChild, "marovane.test.BookedChild" );

namespace {

/// "objects bytes peak" of an account in the list.
std::string find( const std::string& in_strName ) {
    for ( const MemAccount::Figures& f : MemAccount::list() ) {
        if ( f.strName == in_strName )
            return testing::PrintToString( std::make_tuple( f.ullObjects, f.ullBytes, f.ullPeakBytes ) );
    }
    return "none";
}

TEST( MemAccount, EveryFormOfNewIsBookedUnderItsClass ) {
    const std::string strSize = std::to_string( sizeof( BookedChild ) );
    std::unique_ptr<Object> pObject( new BookedChild() );
    EXPECT_EQ( find( BookedChild::getMemAccountName() ), "(1, " + strSize + ", " + strSize + ")" );
    pObject.reset( new ( std::nothrow ) BookedChild() );
    pObject.reset();
    EXPECT_EQ( find( "Test.BookedChild" ), "(0, 0, " + std::to_string( 2 * sizeof( BookedChild ) ) + ")" );
    EXPECT_EQ( find( "Test.Booked" ), "none" );

    EXPECT_THROW( new Booked( true ), std::runtime_error );
    EXPECT_THROW( new ( std::nothrow ) Booked( true ), std::runtime_error );
    EXPECT_THROW( ( new Booked[2]{ Booked( false ), Booked( true ) } ), std::runtime_error );
    for ( Booked* const pArray : { new Booked[3], new ( std::nothrow ) Booked[3] } ) {
        EXPECT_EQ( reinterpret_cast<std::uintptr_t>( pArray ) % alignof( Booked ), 0u );
        EXPECT_THAT( find( "Test.Booked" ), testing::Not( testing::StartsWith( "(0, " ) ) );
        delete[] pArray;
    }
    EXPECT_THAT( find( "Test.Booked" ), testing::StartsWith( "(0, 0, " ) );
}

TEST( MemAccount, TheListMergesNamesAndForgetsWhatIsGone ) {
    {
        MemAccount one( "Test.Merged" ), other( "Test.Merged" );
        const MemAccount unused( "Test.Unused" );
        one.add( 10 );
        one.remove( 10 );
        one.add( 3 );
        other.add( 20 );
        EXPECT_EQ( find( "Test.Merged" ), "(2, 23, 30)" );
        EXPECT_EQ( find( "Test.Unused" ), "none" );
        const auto vecFigures = MemAccount::list();
        for ( std::size_t u = 1; u < vecFigures.size(); ++u )
            EXPECT_LT( vecFigures[u - 1].strName, vecFigures[u].strName );
    }
    EXPECT_EQ( find( "Test.Merged" ), "none" );
}

TEST( MemAccount, CountsWhatThreadsAllocate ) {
    constexpr unsigned long long THREADS = 8, ROUNDS = 500, BYTES = 16;
    MemAccount account( "Test.Threads" );
    {
        std::vector<std::jthread> vecThreads;
        for ( unsigned long long ull = 0; ull < THREADS; ++ull )
            vecThreads.emplace_back( [&account] {
                for ( unsigned long long ullRound = 0; ullRound < ROUNDS; ++ullRound ) {
                    account.add( BYTES );
                    account.add( 1 );
                    account.remove( BYTES );
                    static_cast<void>( MemAccount::list() );
                }
            } );
    }
    const MemAccount::Figures figures = account.getFigures();
    EXPECT_EQ( figures.ullObjects, THREADS * ROUNDS );
    EXPECT_EQ( figures.ullBytes, THREADS * ROUNDS );
    EXPECT_GE( figures.ullPeakBytes, THREADS * ROUNDS );
    EXPECT_LE( figures.ullPeakBytes, THREADS * ROUNDS + THREADS * BYTES );
}

} // namespace
} // namespace Velquin::Test

#ifndef MEMORY_IS_THE_SANITIZERS

namespace Velquin::Test {
namespace {

TEST( EndOfMemory, NothingIsBookedAndAHandleStillTakesOwnership ) {
    MemAccount account( "Test.Failing" );
    account.add( 0 );
    Booked* const pBooked = new Booked();
    t_bMemoryEnded = true;
    EXPECT_EQ( DefaultStaticMemAllocator::allocate( account, 8, std::nothrow ), nullptr );
    EXPECT_THROW( DefaultStaticMemAllocator::allocate( account, 8 ), std::bad_alloc );
    EXPECT_EQ( NoSizeMemAllocator::allocate( account, 8, std::nothrow ), nullptr );
    EXPECT_THROW( NoSizeMemAllocator::allocate( account, 8 ), std::bad_alloc );
    EXPECT_THROW( TSHandle<Booked>{ pBooked }, std::bad_alloc );
    t_bMemoryEnded = false;
    // The header in front of the block must not wrap the size around.
    EXPECT_EQ( NoSizeMemAllocator::allocate( account, SIZE_MAX - 3, std::nothrow ), nullptr );
    EXPECT_THROW( NoSizeMemAllocator::allocate( account, SIZE_MAX - 3 ), std::bad_alloc );
    EXPECT_EQ( find( "Test.Failing" ), "(1, 0, 0)" );
    EXPECT_THAT( find( "Test.Booked" ), testing::StartsWith( "(0, 0, " ) );
}

TEST( EndOfMemory, IsReportedAndSurvived ) {
    char szHeard[20] = {};
    const FindingWatch watch( [&]( const Finding& in_finding ) { in_finding.strText.copy( szHeard, 19 ); } );
    const LogCapture log;
    t_bMemoryEnded = true;
    VELQUIN_LOG_DEBUG( BookedChild::getLogger(), "unheard" );
    try {
        throw std::bad_alloc();
    } catch ( ... ) {
        reportCurrentException( BookedChild::getLogger(), "load", __FILE__, __LINE__ );
    }
    t_bMemoryEnded = false;
    EXPECT_STREQ( szHeard, "out of memory" );
    VELQUIN_LOG_DEBUG( BookedChild::getLogger(), "heard" );
    EXPECT_EQ( log.getRecords().back(), ( LogCapture::Record{ 10000, "marovane.test.BookedChild", "heard" } ) );
}

} // namespace
} // namespace Velquin::Test

#endif

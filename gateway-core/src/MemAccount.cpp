#include <velquin/MemAccount.h>

#include <algorithm>
#include <limits>
#include <mutex>

namespace Velquin {

namespace {

// Guards the list. Only the first use of an account and the end of its library touch the list.
std::mutex s_mutexList;
MemAccount* s_pFirst = nullptr;

// The size stands in front of the block, in a header that keeps the alignment of operator new.
constexpr std::size_t HEADER_SIZE = __STDCPP_DEFAULT_NEW_ALIGNMENT__;
static_assert( sizeof( std::size_t ) <= HEADER_SIZE );

bool hasRoomForHeader( std::size_t in_uBytes ) noexcept {
    return in_uBytes <= std::numeric_limits<std::size_t>::max() - HEADER_SIZE;
}

void* bookWithHeader( MemAccount& in_account, void* in_pRoom, std::size_t in_uBytes ) noexcept {
    in_account.add( in_uBytes );
    ::new ( in_pRoom ) std::size_t( in_uBytes );
    return static_cast<std::byte*>( in_pRoom ) + HEADER_SIZE;
}

} // namespace

MemAccount::~MemAccount() {
    if ( !m_bEnlisted.load( std::memory_order_acquire ) )
        return;
    const std::lock_guard lock( s_mutexList );
    MemAccount** ppAccount = &s_pFirst;
    while ( *ppAccount != this )
        ppAccount = &( *ppAccount )->m_pNext;
    *ppAccount = m_pNext;
}

MemAccount::Figures MemAccount::getFigures() const {
    const unsigned long long ullBytes = m_ullBytes.load( std::memory_order_relaxed );
    return { m_szName, m_ullObjects.load( std::memory_order_relaxed ), ullBytes,
             std::max( ullBytes, m_ullPeakBytes.load( std::memory_order_relaxed ) ) };
}

void MemAccount::add( std::size_t in_uBytes ) noexcept {
    if ( !m_bEnlisted.load( std::memory_order_acquire ) )
        enlist();
    m_ullObjects.fetch_add( 1, std::memory_order_relaxed );
    m_ullBytes.fetch_add( in_uBytes, std::memory_order_relaxed );
}

void MemAccount::remove( std::size_t in_uBytes ) noexcept {
    m_ullObjects.fetch_sub( 1, std::memory_order_relaxed );
    // Every peak ends with a release: it is enough to look for peaks here and in the listing.
    const unsigned long long ullBytes = m_ullBytes.fetch_sub( in_uBytes, std::memory_order_relaxed );
    unsigned long long ullPeak = m_ullPeakBytes.load( std::memory_order_relaxed );
    while ( ullPeak < ullBytes &&
            !m_ullPeakBytes.compare_exchange_weak( ullPeak, ullBytes, std::memory_order_relaxed ) ) {
    }
}

std::vector<MemAccount::Figures> MemAccount::list() {
    std::vector<Figures> vecFigures;
    {
        const std::lock_guard lock( s_mutexList );
        for ( const MemAccount* pAccount = s_pFirst; pAccount; pAccount = pAccount->m_pNext )
            vecFigures.push_back( pAccount->getFigures() );
    }
    std::sort( vecFigures.begin(), vecFigures.end(),
               []( const Figures& in_x, const Figures& in_y ) { return in_x.strName < in_y.strName; } );
    std::vector<Figures> vecMerged;
    for ( Figures& figures : vecFigures ) {
        if ( vecMerged.empty() || vecMerged.back().strName != figures.strName ) {
            vecMerged.push_back( std::move( figures ) );
        } else {
            vecMerged.back().ullObjects += figures.ullObjects;
            vecMerged.back().ullBytes += figures.ullBytes;
            vecMerged.back().ullPeakBytes += figures.ullPeakBytes;
        }
    }
    return vecMerged;
}

void MemAccount::enlist() noexcept {
    const std::lock_guard lock( s_mutexList );
    if ( m_bEnlisted.load( std::memory_order_relaxed ) )
        return;
    m_pNext = s_pFirst;
    s_pFirst = this;
    m_bEnlisted.store( true, std::memory_order_release );
}

void* DefaultStaticMemAllocator::allocate( MemAccount& in_account, std::size_t in_uBytes ) {
    void* const pBlock = ::operator new( in_uBytes );
    in_account.add( in_uBytes );
    return pBlock;
}

void* DefaultStaticMemAllocator::allocate( MemAccount& in_account, std::size_t in_uBytes,
                                           const std::nothrow_t& in_noThrow ) noexcept {
    void* const pBlock = ::operator new( in_uBytes, in_noThrow );
    if ( pBlock )
        in_account.add( in_uBytes );
    return pBlock;
}

void DefaultStaticMemAllocator::deallocate( MemAccount& in_account, void* in_pBlock, std::size_t in_uBytes ) noexcept {
    if ( !in_pBlock )
        return;
    in_account.remove( in_uBytes );
    ::operator delete( in_pBlock );
}

void* NoSizeMemAllocator::allocate( MemAccount& in_account, std::size_t in_uBytes ) {
    if ( !hasRoomForHeader( in_uBytes ) )
        throw std::bad_alloc();
    return bookWithHeader( in_account, ::operator new( HEADER_SIZE + in_uBytes ), in_uBytes );
}

void* NoSizeMemAllocator::allocate( MemAccount& in_account, std::size_t in_uBytes,
                                    const std::nothrow_t& in_noThrow ) noexcept {
    void* const pRoom = hasRoomForHeader( in_uBytes ) ? ::operator new( HEADER_SIZE + in_uBytes, in_noThrow ) : nullptr;
    return pRoom ? bookWithHeader( in_account, pRoom, in_uBytes ) : nullptr;
}

void NoSizeMemAllocator::deallocate( MemAccount& in_account, void* in_pBlock ) noexcept {
    if ( !in_pBlock )
        return;
    void* const pRoom = static_cast<std::byte*>( in_pBlock ) - HEADER_SIZE;
    in_account.remove( *std::launder( static_cast<const std::size_t*>( pRoom ) ) );
    ::operator delete( pRoom );
}

} // namespace Velquin

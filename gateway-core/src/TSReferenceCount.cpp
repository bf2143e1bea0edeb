#include <velquin/TSReferenceCount.h>

#include <new>

#include <ace/OS_NS_Thread.h>

namespace Velquin {

VELQUIN_MEM_ACCOUNT_IMPL( TSReferenceCount, "TSReferenceCount" );

namespace {

ACE_thread_mutex_t* asMutex( std::byte* in_pRoom ) noexcept {
    return std::launder( reinterpret_cast<ACE_thread_mutex_t*>( in_pRoom ) );
}

} // namespace

class TSReferenceCount::Section {
public:
    explicit Section( TSReferenceCount& inout_count ) noexcept : m_count( inout_count ) {
        ACE_OS::thread_mutex_lock( asMutex( m_count.m_aCriticalSection ) );
        m_count.m_bBusy = true;
    }
    Section( const Section& ) = delete;
    Section& operator=( const Section& ) = delete;
    ~Section() {
        m_count.m_bBusy = false;
        ACE_OS::thread_mutex_unlock( asMutex( m_count.m_aCriticalSection ) );
    }

private:
    TSReferenceCount& m_count;
};

TSReferenceCount::TSReferenceCount() {
    static_assert( sizeof( ACE_thread_mutex_t ) <= sizeof( m_aCriticalSection ) );
    static_assert( alignof( ACE_thread_mutex_t ) <= alignof( std::max_align_t ) );
    ACE_thread_mutex_t* const pMutex = ::new ( m_aCriticalSection ) ACE_thread_mutex_t;
    if ( ACE_OS::thread_mutex_init( pMutex ) != 0 )
        throw std::bad_alloc();
}

TSReferenceCount::~TSReferenceCount() {
    ACE_OS::thread_mutex_destroy( asMutex( m_aCriticalSection ) );
}

void TSReferenceCount::increment() noexcept {
    const Section section( *this );
    ++m_uCount;
}

bool TSReferenceCount::decrement() noexcept {
    const Section section( *this );
    return --m_uCount == 0;
}

unsigned int TSReferenceCount::getCount() noexcept {
    const Section section( *this );
    return m_uCount;
}

} // namespace Velquin

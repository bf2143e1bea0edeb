#pragma once

#include <atomic>
#include <cstddef>
#include <new>
#include <string>
#include <vector>

#include <velquin/Export.h>

namespace Velquin {

/// Counts the live objects and bytes of one class. An account lives as long as the library that defines the class; see
/// VELQUIN_MEM_ACCOUNT. Counting is thread-safe and takes no lock.
class VELQUIN_CORE_EXPORT MemAccount {
public:
    /// The figures of an account at one moment.
    struct Figures {
        std::string strName;             ///< the account's name, which is the class name
        unsigned long long ullObjects;   ///< live allocations (an array counts once)
        unsigned long long ullBytes;     ///< bytes of the live allocations
        unsigned long long ullPeakBytes; ///< the most bytes that were ever live at one time
    };

    /// @param in_szName the account's name; it outlives the account
    constexpr explicit MemAccount( const char* in_szName ) noexcept : m_szName( in_szName ) {}
    MemAccount( const MemAccount& ) = delete;
    MemAccount& operator=( const MemAccount& ) = delete;
    ~MemAccount();

    const char* getName() const noexcept { return m_szName; }
    Figures getFigures() const;

    /// Counts one allocation of that many bytes.
    void add( std::size_t in_uBytes ) noexcept;
    /// Counts the release of one allocation of that many bytes.
    void remove( std::size_t in_uBytes ) noexcept;

    /// All accounts that were ever used, by name. Accounts of the same name are listed as one, with the sum of their
    /// peaks.
    /// @throws std::bad_alloc
    static std::vector<Figures> list();

private:
    void enlist() noexcept;

    const char* m_szName;
    std::atomic<unsigned long long> m_ullObjects{ 0 };
    std::atomic<unsigned long long> m_ullBytes{ 0 };
    std::atomic<unsigned long long> m_ullPeakBytes{ 0 };
    std::atomic<bool> m_bEnlisted{ false };
    MemAccount* m_pNext = nullptr;
};

/// Allocates blocks for an account. Whoever releases a block knows its size.
class VELQUIN_CORE_EXPORT DefaultStaticMemAllocator {
public:
    /// @throws std::bad_alloc when memory ends; nothing is booked then
    static void* allocate( MemAccount& in_account, std::size_t in_uBytes );
    /// The same, with null instead of an exception.
    static void* allocate( MemAccount& in_account, std::size_t in_uBytes, const std::nothrow_t& ) noexcept;
    /// @param in_uBytes the size with which the block was allocated
    static void deallocate( MemAccount& in_account, void* in_pBlock, std::size_t in_uBytes ) noexcept;
};

/// Allocates blocks for an account. Each block stores its size: whoever releases an array doesn't know it.
class VELQUIN_CORE_EXPORT NoSizeMemAllocator {
public:
    /// @throws std::bad_alloc when memory ends; nothing is booked then
    static void* allocate( MemAccount& in_account, std::size_t in_uBytes );
    /// The same, with null instead of an exception.
    static void* allocate( MemAccount& in_account, std::size_t in_uBytes, const std::nothrow_t& ) noexcept;
    static void deallocate( MemAccount& in_account, void* in_pBlock ) noexcept;
};

} // namespace Velquin

/// Gives a class its memory account: `getMemAccountName()` and every form of `operator new` and `operator delete`. Put
/// it into the class, and VELQUIN_MEM_ACCOUNT_IMPL into the source file. Every class of a hierarchy has its own
/// account.
#define VELQUIN_MEM_ACCOUNT( ClassName )                                                                               \
public:                                                                                                                \
    static const char* getMemAccountName();                                                                            \
    static void* operator new( std::size_t in_uBytes );                                                                \
    static void* operator new( std::size_t in_uBytes, const std::nothrow_t& in_noThrow ) noexcept;                     \
    static void* operator new( std::size_t, void* in_pPlace ) noexcept {                                               \
        return in_pPlace;                                                                                              \
    }                                                                                                                  \
    static void* operator new[]( std::size_t in_uBytes );                                                              \
    static void* operator new[]( std::size_t in_uBytes, const std::nothrow_t& in_noThrow ) noexcept;                   \
    static void* operator new[]( std::size_t, void* in_pPlace ) noexcept {                                             \
        return in_pPlace;                                                                                              \
    }                                                                                                                  \
    static void operator delete( void* in_pBlock, std::size_t in_uBytes ) noexcept;                                    \
    static void operator delete( void* in_pBlock, const std::nothrow_t& ) noexcept;                                    \
    static void operator delete( void*, void* ) noexcept {}                                                            \
    static void operator delete[]( void* in_pBlock ) noexcept;                                                         \
    static void operator delete[]( void* in_pBlock, const std::nothrow_t& ) noexcept;                                  \
    static void operator delete[]( void*, void* ) noexcept {}                                                          \
                                                                                                                       \
private:                                                                                                               \
    static ::Velquin::MemAccount s_memAccount

/// Defines what VELQUIN_MEM_ACCOUNT declares. The first argument is the class, qualified for this place; the second is
/// the account's name.
#define VELQUIN_MEM_ACCOUNT_IMPL( ClassName, szName )                                                                  \
    constinit ::Velquin::MemAccount ClassName::s_memAccount( szName );                                                 \
    const char* ClassName::getMemAccountName() {                                                                       \
        return s_memAccount.getName();                                                                                 \
    }                                                                                                                  \
    void* ClassName::operator new( std::size_t in_uBytes ) {                                                           \
        static_assert( alignof( ClassName ) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__ );                                     \
        return ::Velquin::DefaultStaticMemAllocator::allocate( s_memAccount, in_uBytes );                              \
    }                                                                                                                  \
    void* ClassName::operator new( std::size_t in_uBytes, const std::nothrow_t& in_noThrow ) noexcept {                \
        return ::Velquin::DefaultStaticMemAllocator::allocate( s_memAccount, in_uBytes, in_noThrow );                  \
    }                                                                                                                  \
    void* ClassName::operator new[]( std::size_t in_uBytes ) {                                                         \
        return ::Velquin::NoSizeMemAllocator::allocate( s_memAccount, in_uBytes );                                     \
    }                                                                                                                  \
    void* ClassName::operator new[]( std::size_t in_uBytes, const std::nothrow_t& in_noThrow ) noexcept {              \
        return ::Velquin::NoSizeMemAllocator::allocate( s_memAccount, in_uBytes, in_noThrow );                         \
    }                                                                                                                  \
    void ClassName::operator delete( void* in_pBlock, std::size_t in_uBytes ) noexcept {                               \
        ::Velquin::DefaultStaticMemAllocator::deallocate( s_memAccount, in_pBlock, in_uBytes );                        \
    }                                                                                                                  \
    void ClassName::operator delete( void* in_pBlock, const std::nothrow_t& ) noexcept {                               \
        ::Velquin::DefaultStaticMemAllocator::deallocate( s_memAccount, in_pBlock, sizeof( ClassName ) );              \
    }                                                                                                                  \
    void ClassName::operator delete[]( void* in_pBlock ) noexcept {                                                    \
        ::Velquin::NoSizeMemAllocator::deallocate( s_memAccount, in_pBlock );                                          \
    }                                                                                                                  \
    void ClassName::operator delete[]( void* in_pBlock, const std::nothrow_t& ) noexcept {                             \
        ::Velquin::NoSizeMemAllocator::deallocate( s_memAccount, in_pBlock );                                          \
    }                                                                                                                  \
    static_assert( true )

// The program's operator new and delete. They stand apart from the tests: where a compiler inlines one of a pair but
// not the other, it takes them for mismatched.
#include "EndOfMemory.h"

#ifndef MEMORY_IS_THE_SANITIZERS

#include <cstdlib>
#include <new>

thread_local bool Velquin::Test::t_bMemoryEnded = false;

void* operator new( std::size_t in_uBytes, const std::nothrow_t& ) noexcept {
    return Velquin::Test::t_bMemoryEnded ? nullptr : std::malloc( in_uBytes ? in_uBytes : 1 );
}
void* operator new( std::size_t in_uBytes ) {
    if ( void* const pBlock = operator new( in_uBytes, std::nothrow ) )
        return pBlock;
    throw std::bad_alloc();
}
void operator delete( void* in_pBlock ) noexcept {
    std::free( in_pBlock );
}
void operator delete( void* in_pBlock, std::size_t ) noexcept {
    std::free( in_pBlock );
}

#endif

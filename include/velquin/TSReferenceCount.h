#pragma once

#include <cstddef>

#include <velquin/MemAccount.h>

namespace Velquin {

/// The count behind TSHandle: how many handles hold one object. Starts at 1. Any thread may call all operations.
class VELQUIN_CORE_EXPORT TSReferenceCount {
    VELQUIN_MEM_ACCOUNT( TSReferenceCount );

public:
    TSReferenceCount();
    TSReferenceCount( const TSReferenceCount& ) = delete;
    TSReferenceCount& operator=( const TSReferenceCount& ) = delete;
    ~TSReferenceCount();

    /// Counts one more holder.
    void increment() noexcept;
    /// Counts one holder less. Yields true for the last holder, which must then delete the object and the count.
    bool decrement() noexcept;
    /// The number of holders at this moment.
    unsigned int getCount() noexcept;

private:
    class Section;

    // Room for the operating system's critical section. This header doesn't include its header.
    alignas( std::max_align_t ) std::byte m_aCriticalSection[48];
    unsigned int m_uCount = 1;
    bool m_bBusy = false; // a thread is inside the critical section
};

} // namespace Velquin

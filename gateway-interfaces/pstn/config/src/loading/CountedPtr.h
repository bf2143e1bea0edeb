#pragma once

#include <memory>
#include <utility>

#include <velquin/MemAccount.h>

#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// The count of a CountedPtr. Not thread-safe.
class VELQUIN_PSTN_CONFIG_EXPORT ReferenceCount {
    VELQUIN_MEM_ACCOUNT( ReferenceCount );

public:
    unsigned int m_uCount = 1;
};

/// Shares an object between the copies of its owner, all on one thread. The object's class must be complete where the
/// pointer is made, copied or released.
template <class T>
class CountedPtr {
public:
    /// Takes ownership, even when there is no memory for the count: the object is then deleted.
    explicit CountedPtr( T* in_pObject ) : m_pObject( in_pObject ) {
        std::unique_ptr<T> pObject( in_pObject );
        m_pCount = new ReferenceCount();
        static_cast<void>( pObject.release() );
    }
    CountedPtr( const CountedPtr& in_pOther ) noexcept
        : m_pObject( in_pOther.m_pObject ), m_pCount( in_pOther.m_pCount ) {
        ++m_pCount->m_uCount;
    }
    CountedPtr& operator=( const CountedPtr& in_pOther ) noexcept {
        CountedPtr copy( in_pOther );
        std::swap( m_pObject, copy.m_pObject );
        std::swap( m_pCount, copy.m_pCount );
        return *this;
    }
    ~CountedPtr() {
        if ( --m_pCount->m_uCount == 0 ) {
            delete m_pObject;
            delete m_pCount;
        }
    }

    T* operator->() const noexcept { return m_pObject; }

private:
    T* m_pObject;
    ReferenceCount* m_pCount;
};

} // namespace Velquin::Pstn

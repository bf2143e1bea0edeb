#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

#include <velquin/TSReferenceCount.h>

namespace Velquin {

/// Counted handle: copies share one object, and the last copy deletes it. The count is thread-safe, but a handle is
/// not: each thread copies, uses and releases handles of its own.
template <class T>
class TSHandle {
public:
    TSHandle() noexcept = default;
    TSHandle( std::nullptr_t ) noexcept {}

    /// Takes ownership. If there is no memory for the count, it deletes the object and throws std::bad_alloc.
    explicit TSHandle( T* in_pObject ) {
        std::unique_ptr<T> pObject( in_pObject );
        if ( pObject )
            m_pCount = new TSReferenceCount();
        m_pObject = pObject.release();
    }

    TSHandle( const TSHandle& in_hOther ) noexcept : m_pObject( in_hOther.m_pObject ), m_pCount( in_hOther.m_pCount ) {
        if ( m_pCount )
            m_pCount->increment();
    }

    TSHandle( TSHandle&& in_hOther ) noexcept
        : m_pObject( std::exchange( in_hOther.m_pObject, nullptr ) ),
          m_pCount( std::exchange( in_hOther.m_pCount, nullptr ) ) {}

    /// Takes a handle of a derived class, or of the same class without const.
    template <class U>
    TSHandle( const TSHandle<U>& in_hOther ) noexcept requires( std::is_convertible_v<U*, T*> )
        : TSHandle( in_hOther, in_hOther.get() ) {}

    /// Shares the object of another handle, as another of its classes: the last handle deletes it through that one.
    template <class U>
    TSHandle( const TSHandle<U>& in_hOwner, T* in_pObject ) noexcept
        : m_pObject( in_pObject ), m_pCount( in_pObject ? in_hOwner.m_pCount : nullptr ) {
        static_assert( std::has_virtual_destructor_v<T> || std::is_same_v<std::remove_cv_t<T>, std::remove_cv_t<U>> );
        if ( m_pCount )
            m_pCount->increment();
    }

    TSHandle& operator=( const TSHandle& in_hOther ) noexcept {
        TSHandle( in_hOther ).swap( *this );
        return *this;
    }

    TSHandle& operator=( TSHandle&& in_hOther ) noexcept {
        TSHandle( std::move( in_hOther ) ).swap( *this );
        return *this;
    }

    ~TSHandle() {
        if ( m_pCount && m_pCount->decrement() ) {
            delete m_pObject;
            delete m_pCount;
        }
    }

    void swap( TSHandle& inout_hOther ) noexcept {
        std::swap( m_pObject, inout_hOther.m_pObject );
        std::swap( m_pCount, inout_hOther.m_pCount );
    }

    bool isNull() const noexcept { return m_pObject == nullptr; }
    T* get() const noexcept { return m_pObject; }
    T* operator->() const noexcept { return m_pObject; }
    T& operator*() const noexcept { return *m_pObject; }

    /// Whether both refer to the same object.
    friend bool operator==( const TSHandle& in_hX, const TSHandle& in_hY ) noexcept {
        return in_hX.m_pObject == in_hY.m_pObject;
    }

private:
    template <class U>
    friend class TSHandle;

    T* m_pObject = nullptr;
    TSReferenceCount* m_pCount = nullptr;
};

/// The same object as a handle of a derived class; null when the object is of another class.
template <class T, class U>
TSHandle<T> dynamicHandleCast( const TSHandle<U>& in_hObject ) noexcept {
    return TSHandle<T>( in_hObject, dynamic_cast<T*>( in_hObject.get() ) );
}

} // namespace Velquin

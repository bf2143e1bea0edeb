#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

namespace Velquin {

/// The only owner of an object under construction. Deletes it unless it is released to the next owner.
template <class T>
class UniqueObjPtr {
public:
    UniqueObjPtr() noexcept = default;
    UniqueObjPtr( std::nullptr_t ) noexcept {}
    explicit UniqueObjPtr( T* in_pObject ) noexcept : m_pObject( in_pObject ) {}

    bool isNull() const noexcept { return m_pObject == nullptr; }
    T* get() const noexcept { return m_pObject.get(); }
    T* operator->() const noexcept { return m_pObject.get(); }
    T& operator*() const noexcept { return *m_pObject; }
    /// Hands the object over to the caller.
    [[nodiscard]] T* release() noexcept { return m_pObject.release(); }

private:
    std::unique_ptr<T> m_pObject;
};

/// Moves the object into an owner of a derived class. If the object is of another class, it is deleted, and the result
/// is null.
template <class T, class U>
UniqueObjPtr<T> dynamicOwnerCast( UniqueObjPtr<U> in_pObject ) noexcept {
    UniqueObjPtr<T> pDerived( dynamic_cast<T*>( in_pObject.get() ) );
    if ( !pDerived.isNull() )
        static_cast<void>( in_pObject.release() );
    return pDerived;
}

} // namespace Velquin

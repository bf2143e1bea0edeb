#pragma once

#include <cstddef>
#include <type_traits>

namespace Velquin {

/// Refers to an object that somebody else owns, as from child to parent. Counts nothing and keeps nothing alive.
template <class T>
class LimitedObjPtr {
public:
    LimitedObjPtr() noexcept = default;
    LimitedObjPtr( std::nullptr_t ) noexcept {}
    LimitedObjPtr( T* in_pObject ) noexcept : m_pObject( in_pObject ) {}
    template <class U>
    LimitedObjPtr( const LimitedObjPtr<U>& in_pOther ) noexcept requires( std::is_convertible_v<U*, T*> )
        : m_pObject( in_pOther.get() ) {}

    bool isNull() const noexcept { return m_pObject == nullptr; }
    T* get() const noexcept { return m_pObject; }
    T* operator->() const noexcept { return m_pObject; }
    T& operator*() const noexcept { return *m_pObject; }

private:
    T* m_pObject = nullptr;
};

} // namespace Velquin

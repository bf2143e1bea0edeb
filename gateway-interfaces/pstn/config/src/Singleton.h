#pragma once

#include <atomic>
#include <mutex>

#include "NamedMutex.h"

namespace Velquin::Pstn {

/// The one object of a class, made at first use under a named mutex and kept until the process ends. The class names
/// the mutex in `SINGLETON_MUTEX`. If its constructor is private, it declares Singleton a friend.
template <class T>
class Singleton {
public:
    /// May be called from any thread.
    static T& getInstance() {
        static std::atomic<T*> s_pInstance{ nullptr };
        T* pInstance = s_pInstance.load( std::memory_order_acquire );
        if ( !pInstance ) {
            static NamedMutex s_mutex( T::SINGLETON_MUTEX );
            const std::lock_guard lock( s_mutex );
            pInstance = s_pInstance.load( std::memory_order_relaxed );
            if ( !pInstance ) {
                pInstance = new T();
                s_pInstance.store( pInstance, std::memory_order_release );
            }
        }
        return *pInstance;
    }
};

} // namespace Velquin::Pstn

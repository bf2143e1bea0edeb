#pragma once

#include <memory>

namespace Velquin::Pstn {

/// A mutex with a name, for std::lock_guard. It guards the creation of the library's singletons.
class NamedMutex {
public:
    explicit NamedMutex( const char* in_szName );
    NamedMutex( const NamedMutex& ) = delete;
    NamedMutex& operator=( const NamedMutex& ) = delete;
    ~NamedMutex();

    void lock();
    void unlock();

private:
    struct Implementation;

    std::unique_ptr<Implementation> m_pImplementation;
};

} // namespace Velquin::Pstn

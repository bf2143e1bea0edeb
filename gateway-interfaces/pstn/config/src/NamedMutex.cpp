#include "NamedMutex.h"

#include <ace/Thread_Mutex.h>

namespace Velquin::Pstn {

struct NamedMutex::Implementation {
    explicit Implementation( const char* in_szName ) : mutex( ACE_TEXT_CHAR_TO_TCHAR( in_szName ) ) {}

    ACE_Thread_Mutex mutex;
};

NamedMutex::NamedMutex( const char* in_szName ) : m_pImplementation( std::make_unique<Implementation>( in_szName ) ) {}

NamedMutex::~NamedMutex() = default;

void NamedMutex::lock() {
    m_pImplementation->mutex.acquire();
}

void NamedMutex::unlock() {
    m_pImplementation->mutex.release();
}

} // namespace Velquin::Pstn

#include "reading/EntryListener.h"

#include <utility>

namespace Velquin::Pstn {

namespace {

thread_local EntryListener* t_pListener = nullptr;

} // namespace

EntryListener::EntryListener() noexcept : m_pOuter( std::exchange( t_pListener, this ) ) {}

EntryListener::~EntryListener() {
    t_pListener = m_pOuter;
}

EntryListener* EntryListener::getCurrent() noexcept {
    return t_pListener;
}

} // namespace Velquin::Pstn

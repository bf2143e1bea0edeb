#pragma once

#include <utility>

#include <velquin/Assertion.h>

namespace Velquin {

/// A value that may be unset.
template <class T>
class Fallible {
public:
    Fallible() = default;
    explicit Fallible( T in_value ) : m_value( std::move( in_value ) ), m_bSet( true ) {}

    bool isSet() const noexcept { return m_bSet; }
    /// The value. Reading an unset one is an assertion and yields a default-constructed value.
    const T& get() const {
        static_cast<void>( VELQUIN_ASSERT( isSet() ) );
        return m_value;
    }
    void set( T in_value ) {
        m_value = std::move( in_value );
        m_bSet = true;
    }

private:
    T m_value{};
    bool m_bSet = false;
};

} // namespace Velquin

#pragma once

#include <string>

#include <velquin/Export.h>

namespace Velquin {

/// A precondition that was checked. If it didn't hold, the logger "marovane.core.Assertion" logs at ERROR
/// "Assertion failed: " + expression + ", file " + the source file's name without folder and extension + ", line " +
/// the line. Throws nothing: the program goes on.
class VELQUIN_CORE_EXPORT Assertion {
public:
    /// @param in_szExpression the text of the condition
    Assertion( bool in_bCondition, const char* in_szExpression, const char* in_szFile, int in_nLine ) noexcept
        : m_bHeld( in_bCondition ) {
        if ( !in_bCondition )
            fail( in_szExpression, in_szFile, in_nLine );
    }

    /// Whether the condition held.
    explicit operator bool() const noexcept { return m_bHeld; }

private:
    static void fail( const char* in_szExpression, const char* in_szFile, int in_nLine ) noexcept;

    bool m_bHeld;
};

} // namespace Velquin

/// Checks the expression and yields whether it held.
#define VELQUIN_ASSERT( ... )                                                                                          \
    static_cast<bool>( ::Velquin::Assertion( static_cast<bool>( __VA_ARGS__ ), #__VA_ARGS__, __FILE__, __LINE__ ) )

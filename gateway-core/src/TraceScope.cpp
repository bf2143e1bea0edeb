#include <velquin/TraceScope.h>

namespace Velquin {

TraceScope::TraceScope( const Logger& in_logger, const char* in_szOperation, const char* in_szFile,
                        int in_nLine ) noexcept
    : m_logger( in_logger ), m_szOperation( in_szOperation ), m_szFile( in_szFile ), m_nLine( in_nLine ) {
    trace( "ENTER " );
}

TraceScope::~TraceScope() {
    trace( "EXIT " );
}

void TraceScope::trace( const char* in_szWhat ) const noexcept {
    if ( !m_logger.isEnabledFor( Logger::TRACE_LEVEL ) )
        return;
    try {
        m_logger.log( Logger::TRACE_LEVEL, std::string( in_szWhat ) + m_szOperation, m_szFile, m_nLine );
    } catch ( ... ) {
        // An operation must not fail because its trace does.
    }
}

} // namespace Velquin

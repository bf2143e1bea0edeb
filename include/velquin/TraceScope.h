#pragma once

#include <velquin/Logger.h>

namespace Velquin {

/// Logs the entry and the exit of an operation at TRACE: "ENTER " and "EXIT " followed by the operation's name.
class VELQUIN_CORE_EXPORT TraceScope {
public:
    /// @param in_szOperation the operation, for instance "XmlConfig::load"; it outlives the scope
    TraceScope( const Logger& in_logger, const char* in_szOperation, const char* in_szFile, int in_nLine ) noexcept;
    TraceScope( const TraceScope& ) = delete;
    TraceScope& operator=( const TraceScope& ) = delete;
    ~TraceScope();

private:
    void trace( const char* in_szWhat ) const noexcept;

    const Logger& m_logger;
    const char* m_szOperation;
    const char* m_szFile;
    int m_nLine;
};

} // namespace Velquin

#define VELQUIN_TRACE_SCOPE( logger, szOperation )                                                                     \
    const ::Velquin::TraceScope traceScope_( ( logger ), ( szOperation ), __FILE__, __LINE__ )

#pragma once

#include <atomic>
#include <cstddef>
#include <new>
#include <sstream>
#include <string>

#include <velquin/Export.h>

namespace Velquin {

/// One named logger of the gateway. It writes to the log4cplus logger of the same name. The program configures
/// log4cplus (appenders, levels) and shuts it down.
///
/// A logger is made once, at its first use, and lives until the process ends (see VELQUIN_LOGGER_IMPL). If there is no
/// memory to get the log4cplus logger, no level is on; the next use tries again. Any thread may call all operations.
class VELQUIN_CORE_EXPORT Logger {
public:
    // The numeric levels are log4cplus's own.
    static constexpr int TRACE_LEVEL = 0;
    static constexpr int DEBUG_LEVEL = 10000;
    static constexpr int INFO_LEVEL = 20000;
    static constexpr int WARNING_LEVEL = 30000;
    static constexpr int ERROR_LEVEL = 40000;

    /// @param in_szName the logger's full name, for instance "marovane.pstn.config.XmlConfig"; it outlives the logger
    explicit Logger( const char* in_szName ) noexcept : m_szName( in_szName ) {}
    Logger( const Logger& ) = delete;
    Logger& operator=( const Logger& ) = delete;
    ~Logger();

    const char* getName() const noexcept { return m_szName; }
    /// The level that counts: the logger's own or the nearest inherited one.
    int getLogLevel() const noexcept;
    bool isEnabledFor( int in_nLevel ) const noexcept;
    /// Writes one record if the level is on. Never throws: drops a record that can't be written. If there is no memory
    /// for the record, it writes a line that says so, if there is memory for that.
    void log( int in_nLevel, const std::string& in_strMessage, const char* in_szFile, int in_nLine ) const noexcept;

private:
    struct Backend;

    const Backend* getBackend() const noexcept;

    const char* m_szName;
    mutable std::atomic<Backend*> m_pBackend{ nullptr };
};

/// Replaces every control character by a question mark. A text with values from a file then stays on one line and can't
/// look like several.
VELQUIN_CORE_EXPORT void makePrintable( std::string& inout_strText ) noexcept;

/// Composes a log record from literals, which may have line breaks, and from values, which are made printable. An array
/// of characters counts as a literal: stream the text of a buffer as a std::string.
class LogText {
public:
    template <std::size_t N>
    LogText& operator<<( const char ( &in_szLiteral )[N] ) {
        m_strText += in_szLiteral;
        return *this;
    }
    template <class T>
    LogText& operator<<( const T& in_value ) {
        std::ostringstream value;
        value << in_value;
        std::string strValue = value.str();
        makePrintable( strValue );
        m_strText += strValue;
        return *this;
    }
    const std::string& str() const noexcept { return m_strText; }

private:
    std::string m_strText;
};

} // namespace Velquin

/// Declares the logger of a class: `getLogger()`, made at first use.
#define VELQUIN_LOGGER()                                                                                               \
public:                                                                                                                \
    static const ::Velquin::Logger& getLogger() noexcept;                                                              \
                                                                                                                       \
private:                                                                                                               \
    static_assert( true )

/// Defines the logger of a class. It is never destroyed: static objects may log to the end. It stands in static memory:
/// it can still report that memory ended.
#define VELQUIN_LOGGER_IMPL( ClassName, szName )                                                                       \
    const ::Velquin::Logger& ClassName::getLogger() noexcept {                                                         \
        alignas( ::Velquin::Logger ) static std::byte roomOfClass_[sizeof( ::Velquin::Logger )];                       \
        static const ::Velquin::Logger& loggerOfClass_ = *::new ( roomOfClass_ )::Velquin::Logger( szName );           \
        return loggerOfClass_;                                                                                         \
    }                                                                                                                  \
    static_assert( true )

/// Logs what the last argument streams; see LogText. Composes nothing when the level is off.
#define VELQUIN_LOG( logger, nLevel, streamed )                                                                        \
    do {                                                                                                               \
        const ::Velquin::Logger& logTarget_ = ( logger );                                                              \
        if ( logTarget_.isEnabledFor( nLevel ) ) {                                                                     \
            ::Velquin::LogText logText_;                                                                               \
            logText_ << streamed; /* NOLINT(bugprone-macro-parentheses): a chain of << */                              \
            logTarget_.log( nLevel, logText_.str(), __FILE__, __LINE__ );                                              \
        }                                                                                                              \
    } while ( false )

#define VELQUIN_LOG_DEBUG( logger, streamed ) VELQUIN_LOG( logger, ::Velquin::Logger::DEBUG_LEVEL, streamed )

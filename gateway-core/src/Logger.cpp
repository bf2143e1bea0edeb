#include <velquin/Logger.h>

#include <algorithm>
#include <memory>

#include <log4cplus/logger.h>

namespace Velquin {

static_assert( Logger::TRACE_LEVEL == log4cplus::TRACE_LOG_LEVEL );
static_assert( Logger::DEBUG_LEVEL == log4cplus::DEBUG_LOG_LEVEL );
static_assert( Logger::INFO_LEVEL == log4cplus::INFO_LOG_LEVEL );
static_assert( Logger::WARNING_LEVEL == log4cplus::WARN_LOG_LEVEL );
static_assert( Logger::ERROR_LEVEL == log4cplus::ERROR_LOG_LEVEL );

struct Logger::Backend {
    log4cplus::Logger logger;
};

Logger::~Logger() {
    delete m_pBackend.load( std::memory_order_acquire );
}

int Logger::getLogLevel() const noexcept {
    try {
        if ( const Backend* const pBackend = getBackend() )
            return pBackend->logger.getChainedLogLevel();
    } catch ( ... ) {
        // A logger of unknown level writes nothing.
    }
    return log4cplus::OFF_LOG_LEVEL;
}

bool Logger::isEnabledFor( int in_nLevel ) const noexcept {
    try {
        const Backend* const pBackend = getBackend();
        return pBackend && pBackend->logger.isEnabledFor( in_nLevel );
    } catch ( ... ) {
        return false;
    }
}

void Logger::log( int in_nLevel, const std::string& in_strMessage, const char* in_szFile,
                  int in_nLine ) const noexcept {
    if ( !isEnabledFor( in_nLevel ) )
        return;
    const auto write = [&]( const std::string& in_strText ) {
        getBackend()->logger.forcedLog( in_nLevel, LOG4CPLUS_STRING_TO_TSTRING( in_strText ), in_szFile, in_nLine, "" );
    };
    try {
        try {
            write( in_strMessage );
        } catch ( const std::bad_alloc& ) {
            write( "out of memory: a line of the log is lost" ); // it may have been the only line about a failure
        }
    } catch ( ... ) {
        // There is no place left to say that a record couldn't be written.
    }
}

const Logger::Backend* Logger::getBackend() const noexcept {
    Backend* pBackend = m_pBackend.load( std::memory_order_acquire );
    if ( pBackend )
        return pBackend;
    try {
        std::unique_ptr<Backend> pNew(
            new Backend{ log4cplus::Logger::getInstance( LOG4CPLUS_C_STR_TO_TSTRING( m_szName ) ) } );
        // If another thread was first, its back-end stays.
        if ( m_pBackend.compare_exchange_strong( pBackend, pNew.get(), std::memory_order_acq_rel ) )
            pBackend = pNew.release();
        return pBackend;
    } catch ( ... ) {
        return nullptr;
    }
}

void makePrintable( std::string& inout_strText ) noexcept {
    std::replace_if(
        inout_strText.begin(), inout_strText.end(),
        []( char in_c ) { return static_cast<unsigned char>( in_c ) < 0x20 || in_c == 0x7f; }, '?' );
}

} // namespace Velquin

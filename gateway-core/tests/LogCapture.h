#pragma once

#include <mutex>
#include <ostream>
#include <string>
#include <vector>

#include <log4cplus/appender.h>
#include <log4cplus/helpers/pointer.h>
#include <log4cplus/logger.h>
#include <log4cplus/spi/loggingevent.h>

namespace Velquin::Test {

/// Records all that is logged while it lives, in place of what the root logger was set up to do.
class LogCapture {
public:
    struct Record {
        int nLevel;
        std::string strLogger;
        std::string strMessage;

        friend bool operator==( const Record&, const Record& ) = default;
        friend std::ostream& operator<<( std::ostream& inout_stream, const Record& in_record ) {
            return inout_stream << in_record.nLevel << ' ' << in_record.strLogger << ": " << in_record.strMessage;
        }
    };

    explicit LogCapture( int in_nLevel = log4cplus::TRACE_LOG_LEVEL ) {
        m_root.removeAllAppenders();
        m_root.addAppender( log4cplus::SharedAppenderPtr( m_pSink.get() ) );
        m_root.setLogLevel( in_nLevel );
    }
    LogCapture( const LogCapture& ) = delete;
    LogCapture& operator=( const LogCapture& ) = delete;
    ~LogCapture() {
        m_root.removeAllAppenders();
        for ( const log4cplus::SharedAppenderPtr& pAppender : m_vecOuterAppenders )
            m_root.addAppender( pAppender );
        m_root.setLogLevel( m_nOuterLevel );
    }

    /// What was logged so far at this level and above.
    std::vector<Record> getRecords( int in_nLowestLevel = log4cplus::TRACE_LOG_LEVEL ) const {
        const std::lock_guard lock( m_pSink->m_mutex );
        std::vector<Record> vecRecords( m_pSink->m_vecRecords );
        std::erase_if( vecRecords, [&]( const Record& in_record ) { return in_record.nLevel < in_nLowestLevel; } );
        return vecRecords;
    }

private:
    class Sink : public log4cplus::Appender {
    public:
        ~Sink() override { destructorImpl(); }
        void close() override { closed = true; }

        std::mutex m_mutex;
        std::vector<Record> m_vecRecords;

    protected:
        void append( const log4cplus::spi::InternalLoggingEvent& in_event ) override {
            const std::lock_guard lock( m_mutex );
            m_vecRecords.push_back( { in_event.getLogLevel(), LOG4CPLUS_TSTRING_TO_STRING( in_event.getLoggerName() ),
                                      LOG4CPLUS_TSTRING_TO_STRING( in_event.getMessage() ) } );
        }
    };

    log4cplus::Logger m_root = log4cplus::Logger::getRoot();
    int m_nOuterLevel = m_root.getLogLevel();
    log4cplus::SharedAppenderPtrList m_vecOuterAppenders = m_root.getAllAppenders();
    log4cplus::helpers::SharedObjectPtr<Sink> m_pSink{ new Sink };
};

} // namespace Velquin::Test

#pragma once

#include <log4cplus/initializer.h>
#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>

/// A log that takes lines from a level on and drops them unformatted, so that only the library is measured.
class QuietLog {
public:
    explicit QuietLog( log4cplus::LogLevel in_nLevel ) {
        log4cplus::Logger root = log4cplus::Logger::getRoot();
        root.removeAllAppenders();
        root.setLogLevel( in_nLevel );
        root.addAppender( log4cplus::SharedAppenderPtr( new log4cplus::NullAppender() ) );
    }

private:
    log4cplus::Initializer m_log;
};

#include "ToolLog.h"

#include <log4cplus/consoleappender.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>

void setUpLog( const std::string& in_strLevel ) {
    log4cplus::Logger root = log4cplus::Logger::getRoot();
    root.removeAllAppenders();
    const log4cplus::LogLevel nLevel =
        log4cplus::getLogLevelManager().fromString( LOG4CPLUS_STRING_TO_TSTRING( in_strLevel ) );
    root.setLogLevel( nLevel );
    if ( nLevel == log4cplus::OFF_LOG_LEVEL ) {
        root.addAppender( log4cplus::SharedAppenderPtr( new log4cplus::NullAppender() ) );
        return;
    }
    log4cplus::SharedAppenderPtr pAppender( new log4cplus::ConsoleAppender( true, true ) );
    pAppender->setLayout( std::make_unique<log4cplus::PatternLayout>( LOG4CPLUS_TEXT( "%-5p %c - %m%n" ) ) );
    root.addAppender( pAppender );
}

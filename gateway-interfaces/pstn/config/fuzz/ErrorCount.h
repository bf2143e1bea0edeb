#pragma once

#include <string>

#include <velquin/Finding.h>

namespace Velquin::Pstn::Fuzz {

/// Counts the findings at ERROR of this thread while it lives.
class ErrorCount {
public:
    unsigned int get() const noexcept { return m_uErrors; }
    /// Not counted: findings about the disconnect supervision of a line. The load goes on without it.
    unsigned int getThoseThatEndALoad() const noexcept { return m_uErrors - m_uAboutSupervision; }

private:
    unsigned int m_uErrors = 0;
    unsigned int m_uAboutSupervision = 0;
    FindingWatch m_watch{ [this]( const Finding& in_finding ) {
        if ( in_finding.nLevel < Logger::ERROR_LEVEL )
            return;
        ++m_uErrors;
        if ( in_finding.strLogger.find( ".AnalogDisconnect" ) != std::string::npos )
            ++m_uAboutSupervision;
    } };
};

} // namespace Velquin::Pstn::Fuzz

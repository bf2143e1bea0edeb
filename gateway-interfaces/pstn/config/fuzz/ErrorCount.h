#pragma once

#include <velquin/Finding.h>

namespace Velquin::Pstn::Fuzz {

/// Counts the findings at ERROR of this thread, for as long as it lives.
class ErrorCount {
public:
    unsigned int get() const noexcept { return m_uErrors; }

private:
    unsigned int m_uErrors = 0;
    FindingWatch m_watch{ [this]( const Finding& in_finding ) {
        if ( in_finding.nLevel >= Logger::ERROR_LEVEL )
            ++m_uErrors;
    } };
};

} // namespace Velquin::Pstn::Fuzz

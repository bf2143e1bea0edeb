#pragma once

#include <ostream>
#include <set>
#include <string>

#include <velquin/Finding.h>

/// Prints each finding on a line in the GNU form, `file:line: error: message [element path]`, and counts them.
class FindingPrinter {
public:
    /// @param in_strFile the file that is meant when a finding names none
    FindingPrinter( std::ostream& inout_stream, std::string in_strFile )
        : m_stream( inout_stream ), m_strFile( std::move( in_strFile ) ) {}

    void print( const Velquin::Finding& in_finding );

    unsigned int getErrors() const { return m_uErrors; }
    unsigned int getWarnings() const { return m_uWarnings; }
    /// Whether there is a file that could not be read at all.
    bool isUnreadable() const { return m_bUnreadable; }
    /// Whether there is a finding about that file.
    bool concerns( const std::string& in_strFile ) const { return m_setFiles.contains( in_strFile ); }

private:
    std::ostream& m_stream;
    std::string m_strFile;
    unsigned int m_uErrors = 0;
    unsigned int m_uWarnings = 0;
    bool m_bUnreadable = false;
    std::set<std::string> m_setFiles;
};

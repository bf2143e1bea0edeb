#pragma once

#include <chrono>
#include <string>

/// Shows on standard error how far a long run is, if that is a terminal.
class Progress {
public:
    /// @param in_bWanted false for a run that says nothing
    Progress( std::size_t in_uFiles, bool in_bWanted );

    /// Says that a file begins, if the run takes longer than a second.
    void begin( const std::string& in_strFile );
    /// Takes the line away again, before anything else is printed.
    void clear();

private:
    std::size_t m_uFiles;
    std::size_t m_uBegun = 0;
    bool m_bWanted;
    bool m_bShown = false;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

#include "Progress.h"

#include <iostream>

#include "../Printable.h"
#include "../Terminal.h"

Progress::Progress( std::size_t in_uFiles, bool in_bWanted )
    : m_uFiles( in_uFiles ), m_bWanted( in_bWanted && isErrorTerminal() ) {}

void Progress::begin( const std::string& in_strFile ) {
    ++m_uBegun;
    if ( !m_bWanted || std::chrono::steady_clock::now() - m_start < std::chrono::seconds( 1 ) )
        return;
    const std::string strLine =
        "checking " + std::to_string( m_uBegun ) + " of " + std::to_string( m_uFiles ) + ": " + printable( in_strFile );
    std::cerr << '\r' << shorten( strLine, getTerminalWidth() - 1 ) << "\x1b[K" << std::flush;
    m_bShown = true;
}

void Progress::clear() {
    if ( m_bShown )
        std::cerr << "\r\x1b[K" << std::flush;
    m_bShown = false;
}

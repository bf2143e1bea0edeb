#include "Terminal.h"

#include <cstdio>
#include <cstdlib>

#if defined( _WIN32 )
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

/// Whether standard output is a terminal. Only the operating system knows it.
bool isTerminal() {
#if defined( _WIN32 )
    return _isatty( _fileno( stdout ) ) != 0;
#else
    return isatty( STDOUT_FILENO ) != 0;
#endif
}

} // namespace

bool wantsColour( const std::string& in_strChoice ) {
    if ( in_strChoice != "auto" )
        return in_strChoice == "always";
    const char* const szNoColour = std::getenv( "NO_COLOR" );
    return isTerminal() && ( !szNoColour || !*szNoColour );
}

#include "Terminal.h"

#include <cstdio>
#include <cstdlib>

#if defined( _WIN32 )
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

// Only the operating system knows what is a terminal.

namespace {

constexpr unsigned int USUAL_WIDTH = 100;

#if defined( _WIN32 )
bool isTerminal( std::FILE* in_pFile ) {
    return _isatty( _fileno( in_pFile ) ) != 0;
}

unsigned int getWidth( DWORD in_uHandle ) {
    CONSOLE_SCREEN_BUFFER_INFO info;
    return GetConsoleScreenBufferInfo( GetStdHandle( in_uHandle ), &info )
               ? static_cast<unsigned int>( info.srWindow.Right - info.srWindow.Left + 1 )
               : 0;
}

constexpr DWORD OUTPUTS[] = { STD_OUTPUT_HANDLE, STD_ERROR_HANDLE };
#else
bool isTerminal( std::FILE* in_pFile ) {
    return isatty( fileno( in_pFile ) ) != 0;
}

unsigned int getWidth( int in_nFile ) {
    winsize size{};
    return ioctl( in_nFile, TIOCGWINSZ, &size ) == 0 ? size.ws_col : 0;
}

constexpr int OUTPUTS[] = { STDOUT_FILENO, STDERR_FILENO };
#endif

} // namespace

bool isOutputTerminal() {
    return isTerminal( stdout );
}

bool isErrorTerminal() {
    return isTerminal( stderr );
}

bool wantsColour( const std::string& in_strChoice ) {
    if ( in_strChoice != "auto" )
        return in_strChoice == "always";
    const char* const szNoColour = std::getenv( "NO_COLOR" );
    return isOutputTerminal() && ( !szNoColour || !*szNoColour );
}

unsigned int getTerminalWidth() {
    for ( const auto output : OUTPUTS ) {
        if ( const unsigned int uWidth = getWidth( output ) )
            return uWidth;
    }
    return USUAL_WIDTH;
}

Utf8Console::Utf8Console() {
#if defined( _WIN32 )
    m_uCodePage = GetConsoleOutputCP();
    SetConsoleOutputCP( CP_UTF8 );
    for ( const DWORD uOutput : OUTPUTS ) {
        DWORD uMode = 0;
        const HANDLE hOutput = GetStdHandle( uOutput );
        if ( GetConsoleMode( hOutput, &uMode ) &&
             SetConsoleMode( hOutput, uMode | ENABLE_VIRTUAL_TERMINAL_PROCESSING ) )
            m_vecModes.emplace_back( hOutput, uMode );
    }
#endif
}

Utf8Console::~Utf8Console() {
#if defined( _WIN32 )
    std::fflush( stdout ); // what is written so far is UTF-8 with colours
    for ( const auto& [hOutput, uMode] : m_vecModes )
        SetConsoleMode( hOutput, uMode );
    if ( m_uCodePage != 0 )
        SetConsoleOutputCP( m_uCodePage );
#endif
}

void setBinaryInput() {
#if defined( _WIN32 )
    _setmode( _fileno( stdin ), _O_BINARY );
#endif
}

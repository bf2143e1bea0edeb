#include "CommandLine.h"

#if defined( _WIN32 )
#include <windows.h>

#include <shellapi.h>

#include "Utf8Path.h"
#endif

std::vector<std::string> getCommandLine( int in_nArguments, char** in_aszArguments ) {
#if defined( _WIN32 )
    int nWords = 0;
    if ( wchar_t** const aszWords = CommandLineToArgvW( GetCommandLineW(), &nWords ) ) {
        std::vector<std::string> vecWords;
        for ( int n = 0; n < nWords; ++n )
            vecWords.push_back( toUtf8( aszWords[n] ) );
        LocalFree( aszWords );
        return vecWords;
    }
#endif
    return { in_aszArguments, in_aszArguments + in_nArguments };
}

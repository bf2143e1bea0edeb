#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "ConfigTest.h"

namespace Velquin::Pstn::Test {

struct ToolResult {
    int nExitCode;
    std::string strOutput;
    std::string strErrors;
};

/// The program as the system's shell names it.
inline const std::string TOOL = std::filesystem::path( PSTN_TEST_TOOL ).make_preferred().string();

inline std::filesystem::path toPath( const std::string& in_strUtf8 ) {
    return std::u8string( in_strUtf8.begin(), in_strUtf8.end() );
}

/// What a program wrote as text, with plain ends of lines.
inline std::string readText( const std::string& in_strPath ) {
    std::string strText = readFile( in_strPath );
#if defined( _WIN32 )
    std::size_t u = 0;
    while ( ( u = strText.find( "\r\n", u ) ) != std::string::npos )
        strText.erase( u, 1 );
#endif
    return strText;
}

/// @param in_strCommand in UTF-8
/// @return what the system's shell exits with
inline int runCommand( const std::string& in_strCommand ) {
#if defined( _WIN32 )
    return _wsystem( toPath( in_strCommand ).c_str() );
#else
    return std::system( in_strCommand.c_str() );
#endif
}

/// Runs the program that operators run.
inline ToolResult runTool( const std::string& in_strArguments ) {
    const TemporaryFile output( "" );
    const TemporaryFile errors( "" );
    const std::string strCommand = TOOL + " " + in_strArguments + " >" + output.getPath() + " 2>" + errors.getPath();
    const int nStatus = runCommand( strCommand );
    return { nStatus > 255 ? nStatus / 256 : nStatus, readText( output.getPath() ), readText( errors.getPath() ) };
}

} // namespace Velquin::Pstn::Test

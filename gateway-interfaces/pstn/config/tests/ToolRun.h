#pragma once

#include <cstdlib>
#include <string>

#include "ConfigTest.h"

namespace Velquin::Pstn::Test {

struct ToolResult {
    int nExitCode;
    std::string strOutput;
    std::string strErrors;
};

/// Runs the program that operators run.
inline ToolResult runTool( const std::string& in_strArguments ) {
    const TemporaryFile output( "" );
    const TemporaryFile errors( "" );
    const std::string strCommand =
        std::string( PSTN_TEST_TOOL ) + " " + in_strArguments + " >" + output.getPath() + " 2>" + errors.getPath();
    const int nStatus = std::system( strCommand.c_str() );
    return { nStatus > 255 ? nStatus / 256 : nStatus, readFile( output.getPath() ), readFile( errors.getPath() ) };
}

} // namespace Velquin::Pstn::Test

#pragma once

#include <string>
#include <vector>

/// The options and arguments of `pstnconfig check`.
struct CheckOptions {
    std::vector<std::string> vecFiles;
    std::string strSchema;
    std::string strParameters; ///< file of the gateway's parameters, or empty
    std::string strLogLevel = "OFF";
    bool bLogContent = false;
};

/// Exit codes of the program.
enum ExitCode {
    EXIT_VALID = 0,
    EXIT_INVALID = 1,
    EXIT_NOT_CHECKED = 2, ///< the command line is wrong, or a file or the schema can't be read
};

/// Checks every file and yields the worst of their exit codes.
ExitCode check( const CheckOptions& in_options );

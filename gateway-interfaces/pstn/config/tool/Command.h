#pragma once

#include <string>

#include <CLI/CLI.hpp>

/// Exit codes of the program.
enum ExitCode {
    EXIT_VALID = 0,
    EXIT_INVALID = 1,
    EXIT_NOT_CHECKED = 2, ///< the command line is wrong, or a file or the schema can't be read, or the output written
    EXIT_SAME = 0,
    EXIT_DIFFERENT = 1,
};

/// The program to which each verb adds itself.
struct Program {
    CLI::App app;
    std::string strDefaultSchema;
    ExitCode eExitCode = EXIT_VALID; ///< that of the verb that ran
};

/// Adds the option that names another schema. The text holds the default.
void addSchemaOption( CLI::App& inout_command, std::string& inout_strSchema );

// Each adds one verb. The verb runs when the command line is parsed.

void addCheckCommand( Program& inout_program );
void addMapCommand( Program& inout_program );
void addDiffCommand( Program& inout_program );
void addShowCommand( Program& inout_program );

#pragma once

#include <string>

#include <CLI/CLI.hpp>

/// `unknown subcommand "chek"; did you mean "check"?`, or which there are; empty when the command line begins
/// otherwise.
std::string describeUnknownVerb( const CLI::App& in_app, int in_nArguments, const char* const* in_aszArguments );

/// The same for the first unknown option of a command line that was refused; empty when there is none.
std::string describeUnknownOption( const CLI::App& in_app );

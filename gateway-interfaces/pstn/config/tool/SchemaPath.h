#pragma once

#include <string>

/// The schema that comes with the program, found relative to it.
/// @param in_szProgram the program as it was called
std::string getDefaultSchemaPath( const char* in_szProgram );

#pragma once

#include <string>

/// Path of the schema that comes with the program, relative to the program's own path.
/// @param in_szProgram the program as it was called
std::string getDefaultSchemaPath( const char* in_szProgram );

#pragma once

/// Does the least that a load with validation needs from libxml2, without this library: reads the file, compiles the
/// schema, validates, and frees everything. The cost of a load is compared with it.
/// @param in_nParseOptions libxml2's options for reading the file
/// @return whether the file is valid
extern "C" bool runFloor( const char* in_szConfigFile, const char* in_szSchemaFile, int in_nParseOptions );

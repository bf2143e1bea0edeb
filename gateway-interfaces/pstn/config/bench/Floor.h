#pragma once

/// The least that a validated load with libxml2 does, without any of this library: reads the file, compiles the schema,
/// validates, and frees everything. What a load costs is told against it.
/// @param in_nParseOptions libxml2's options for reading the file
/// @return whether the file is valid
extern "C" bool runFloor( const char* in_szConfigFile, const char* in_szSchemaFile, int in_nParseOptions );

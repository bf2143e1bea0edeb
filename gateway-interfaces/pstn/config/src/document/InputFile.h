#pragma once

#include <fstream>
#include <string>

namespace Velquin::Pstn {

/// Opens a file for reading, byte for byte. Opens only regular files: a pipe or a device could block or never end.
/// @param in_szPath in UTF-8
/// @return why the file can't be opened; empty when it is open
std::string openInputFile( const char* in_szPath, std::ifstream& out_stream );

} // namespace Velquin::Pstn

#pragma once

#include <fstream>
#include <string>

namespace Velquin::Pstn {

/// Opens a file for reading. Opens only regular files: a pipe or a device could block or never end.
/// @param in_eMode without std::ios::binary, the file is read as text
/// @return why the file can't be opened; empty when it is open
std::string openInputFile( const char* in_szPath, std::ifstream& out_stream,
                           std::ios::openmode in_eMode = std::ios::in | std::ios::binary );

} // namespace Velquin::Pstn

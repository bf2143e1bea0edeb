#pragma once

#include <fstream>
#include <string>

namespace Velquin::Pstn {

/// Opens a file for reading, byte by byte as it stands. Only a regular file is opened: a pipe or a device could block
/// or never end.
/// @return why it can't be opened; empty when it is open
std::string openInputFile( const char* in_szPath, std::ifstream& out_stream );

} // namespace Velquin::Pstn

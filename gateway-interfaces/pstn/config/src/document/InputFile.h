#pragma once

#include <fstream>
#include <string>

namespace Velquin::Pstn {

/// Opens a file for reading, as it stands or, without std::ios::binary, as text. Only a regular file is opened: a pipe
/// or a device could block or never end.
/// @return why it can't be opened; empty when it is open
std::string openInputFile( const char* in_szPath, std::ifstream& out_stream,
                           std::ios::openmode in_eMode = std::ios::in | std::ios::binary );

} // namespace Velquin::Pstn

#pragma once

#include <fstream>
#include <string>

#include <velquin/Export.h>

namespace Velquin {

/// Opens a file for reading, byte for byte. Opens only regular files: a pipe or a device could block or never end.
/// @param in_szPath in UTF-8
/// @return why the file can't be opened; empty when it is open
VELQUIN_CORE_EXPORT std::string openInputFile( const char* in_szPath, std::ifstream& out_stream );

} // namespace Velquin

#pragma once

#include <string>

/// Sends the library's log, from that level on, to standard error; "OFF" sends it nowhere.
/// @param in_strLevel a name of a level ("DEBUG"), or "OFF"
void setUpLog( const std::string& in_strLevel );

#pragma once

#include <string>

/// Sets up the library's log for the program: to standard error from that level on, or nowhere.
/// @param in_strLevel a name of a level ("DEBUG"), or "OFF"
void setUpLog( const std::string& in_strLevel );

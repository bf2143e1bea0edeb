#pragma once

#include <string>
#include <vector>

/// The words of the command line in UTF-8, the program's own name first.
/// @param in_aszArguments what main was given; Windows gives main the words in its own code page
std::vector<std::string> getCommandLine( int in_nArguments, char** in_aszArguments );

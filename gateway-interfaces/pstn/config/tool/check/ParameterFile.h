#pragma once

#include <string>
#include <vector>

#include "CheckedFile.h"

/// Reports lines of the gateway's parameter file that set nothing, and names that the gateway doesn't know, but only
/// those that look like a parameter of this library: other modules have parameters of their own. Reports, too, what is
/// required and absent or empty; the verdict is INVALID then.
/// The file must be loaded into GlobalConfig, and the library's parameters must be declared.
CheckedFile checkParameters( const std::string& in_strFile, const std::vector<std::string>& in_vecRequired,
                             const CheckRequest& in_request );

#pragma once

#include <string>

#include <velquin/Logger.h>

namespace Velquin::Pstn {

/// Stores the display name of a board or an interface: letters, digits, '-', '_' and blanks; it may be empty. Refuses
/// any other text: yields false and leaves the field alone.
bool assignDisplayName( std::string& out_strField, const char* in_szName, const Logger& in_logger ) noexcept;

} // namespace Velquin::Pstn

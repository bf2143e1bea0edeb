#pragma once

#include <string>
#include <string_view>

#include <velquin/Logger.h>

namespace Velquin::Pstn {

/// Which display names are right, in the words of the schema.
inline constexpr std::string_view DISPLAY_NAME_ADVICE =
    "The value must be a text of letters (a to z, A to Z), digits, blanks, - and _.";

/// Stores the display name of a board or an interface: letters, digits, '-', '_' and blanks; it may be empty. Refuses
/// any other text: yields false and leaves the field alone.
bool assignDisplayName( std::string& out_strField, const char* in_szName, const Logger& in_logger ) noexcept;

} // namespace Velquin::Pstn

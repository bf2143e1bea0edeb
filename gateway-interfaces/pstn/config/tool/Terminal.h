#pragma once

#include <string>

/// What --color takes.
inline constexpr const char* COLOUR_CHOICES[] = { "auto", "always", "never" };

/// Whether to write colours to standard output: "always", "never", or "auto": on a terminal, unless the environment has
/// a NO_COLOR that isn't empty.
bool wantsColour( const std::string& in_strChoice );

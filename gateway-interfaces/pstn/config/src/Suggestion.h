#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "PstnConfigExport.h"

namespace Velquin::Pstn {

/// The candidate that somebody meant who wrote the text: the one with the fewest letters inserted, left out, replaced
/// or swapped with the next, at most two. Case doesn't count.
/// @return empty when none is near
VELQUIN_PSTN_CONFIG_EXPORT std::string findNearest( std::string_view in_strText,
                                                    std::span<const std::string> in_candidates );

/// What to write instead of a name that isn't known: the nearest, or all of them if they are few.
VELQUIN_PSTN_CONFIG_EXPORT std::string describeNames( std::string_view in_strText,
                                                      std::span<const std::string> in_names );

} // namespace Velquin::Pstn

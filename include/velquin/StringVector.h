#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <velquin/Export.h>

namespace Velquin {

using StringVector = std::vector<std::string>;

/// Splits the text at every separator, and replaces the content of the vector by the fields. An empty text yields
/// nothing; otherwise N separators yield N+1 fields, including empty ones. Blanks are kept.
/// @throws std::bad_alloc
VELQUIN_CORE_EXPORT void strTokenize( std::string_view in_strText, StringVector& out_vecFields, char in_cSeparator );

} // namespace Velquin

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <velquin/Export.h>

namespace Velquin {

using StringVector = std::vector<std::string>;

/// Splits the text at every separator and puts the fields into the vector, replacing what it holds. An empty text
/// yields nothing; otherwise N separators yield N+1 fields, empty ones included. Blanks are kept.
/// @throws std::bad_alloc
VELQUIN_CORE_EXPORT void strTokenize( std::string_view in_strText, StringVector& out_vecFields, char in_cSeparator );

} // namespace Velquin

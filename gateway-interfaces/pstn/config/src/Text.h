#pragma once

#include <string>

#include <velquin/Logger.h>

namespace Velquin::Pstn {

/// Stores a zero-terminated text in a field of the model. When the text is null (an assertion) or memory ends (an ERROR
/// line), it leaves the field alone and yields false.
bool assignText( std::string& out_strField, const char* in_szText, const Logger& in_logger ) noexcept;

} // namespace Velquin::Pstn

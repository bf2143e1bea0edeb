#pragma once

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

// The words of the readers of analog call control.

/// FXO configurations, including disconnect supervision
inline constexpr ReaderWording FXO_WORDING{ "] for fxo analog config  ", "] for fxo analog config  " };
inline constexpr ReaderWording FXS_WORDING{ "] for fxs analog config  ", "] for fxs analog config  " };

inline constexpr NumberRule POSITIVE_INTERGER{ NumberPolicy::LEADING, "The value must be a positive interger." };
inline constexpr NumberRule POSITIVE_INTEGER{ NumberPolicy::LEADING, "The value must be a positive integer." };

} // namespace Velquin::Pstn

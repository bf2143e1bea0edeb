#pragma once

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

// The words of the readers of physical configurations. They differ in a bracket and a blank.

/// Attributes of the physical configuration itself
inline constexpr ReaderWording PHYSICAL_WORDING{ " for interface physical config ",
                                                 "] for interface physical config " };
/// Its child elements
inline constexpr ReaderWording PHYSICAL_CHILD_WORDING{ "] for interface physical config ",
                                                       "] for interface physical config " };
/// Attributes of its child elements, and of the entries of `applyTo`
inline constexpr ReaderWording PHYSICAL_SETTING_WORDING{ "] for interface physical config  ",
                                                         "] for interface physical config " };

} // namespace Velquin::Pstn

#pragma once

#include "reading/ElementReader.h"

namespace Velquin::Pstn {

/// The words of the readers of the `audio` element.
inline constexpr ReaderWording AUDIO_WORDING{ "] for audio config ", "] for audio config " };

} // namespace Velquin::Pstn

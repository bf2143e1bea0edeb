#pragma once

namespace Velquin::Pstn {

/// The direction of the voice that is processed, seen from the gateway.
enum class VoiceDirection { TO_PSTN = 1, FROM_PSTN = 2, ALL = 3 };

} // namespace Velquin::Pstn

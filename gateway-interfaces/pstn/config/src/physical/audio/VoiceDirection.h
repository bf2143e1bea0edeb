#pragma once

#include "../../reading/KeywordTable.h"

namespace Velquin::Pstn {

/// Direction of the voice to process, seen from the gateway.
enum class VoiceDirection { TO_PSTN = 1, FROM_PSTN = 2, ALL = 3 };

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto VOICE_DIRECTION = keywordTable<VoiceDirection>( {
    { "TO_PSTN", VoiceDirection::TO_PSTN },
    { "FROM_PSTN", VoiceDirection::FROM_PSTN },
    { "ALL", VoiceDirection::ALL },
} );

} // namespace Keywords

} // namespace Velquin::Pstn

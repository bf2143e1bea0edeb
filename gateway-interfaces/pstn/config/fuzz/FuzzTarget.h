#pragma once

#include <cstddef>
#include <cstdint>

/// What libFuzzer calls, and `replay` with the inputs of the corpus: one input, as often as it likes.
/// @return 0
extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize );

namespace Velquin::Pstn::Fuzz {

/// Aborts, which is how a fuzzer learns of a fault, when what should hold doesn't.
void require( bool in_bHolds, const char* in_szWhat );

} // namespace Velquin::Pstn::Fuzz

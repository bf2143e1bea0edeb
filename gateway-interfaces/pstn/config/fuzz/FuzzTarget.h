#pragma once

#include <cstddef>
#include <cstdint>

/// Runs the target on one input. libFuzzer calls it, and `replay` calls it with the inputs of the corpus.
/// @return 0
extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize );

namespace Velquin::Pstn::Fuzz {

/// Aborts when the condition doesn't hold: the fuzzer takes that for a fault.
void require( bool in_bHolds, const char* in_szWhat );

} // namespace Velquin::Pstn::Fuzz

#pragma once

#if defined( __has_feature )
#if __has_feature( thread_sanitizer )
#define MEMORY_IS_THE_SANITIZERS // whose operator new can't be replaced
#endif
#endif
#ifndef MEMORY_IS_THE_SANITIZERS

namespace Velquin::Test {

/// While it is set, operator new fails on this thread.
extern thread_local bool t_bMemoryEnded;

} // namespace Velquin::Test

#endif

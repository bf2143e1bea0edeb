// libxml2 seeds the hash of its dictionaries by the clock. With this clock, the number of instructions repeats.

#include <ctime>

extern "C" __attribute__( ( visibility( "default" ) ) ) std::time_t time( std::time_t* out_pTime ) {
    constexpr std::time_t FIXED = 1000000000;
    if ( out_pTime )
        *out_pTime = FIXED;
    return FIXED;
}

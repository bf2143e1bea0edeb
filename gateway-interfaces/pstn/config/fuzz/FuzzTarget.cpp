#include "FuzzTarget.h"

#include <cstdlib>
#include <iostream>

namespace Velquin::Pstn::Fuzz {

void require( bool in_bHolds, const char* in_szWhat ) {
    if ( in_bHolds )
        return;
    std::cerr << "does not hold: " << in_szWhat << std::endl;
    std::abort();
}

} // namespace Velquin::Pstn::Fuzz

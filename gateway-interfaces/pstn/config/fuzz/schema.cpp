// The input is the schema of a small document.

#include "FuzzTarget.h"
#include "LoadCheck.h"
#include "TemporaryFile.h"

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    static const Velquin::Pstn::Fuzz::TemporaryFile s_schema( "schema.rng" );
    s_schema.write( in_pData, in_uSize );
    Velquin::Pstn::Fuzz::checkLoad( PSTN_FUZZ_SMALL_DOCUMENT, s_schema.getPath(), false );
    return 0;
}

// Loads a document with a schema that accepts everything: every reader sees the damage.

#include "FuzzTarget.h"
#include "LoadCheck.h"
#include "TemporaryFile.h"

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    static const Velquin::Pstn::Fuzz::TemporaryFile s_document( "document.xml" );
    s_document.write( in_pData, in_uSize );
    Velquin::Pstn::Fuzz::checkLoad( s_document.getPath(), PSTN_FUZZ_ANY_SCHEMA, true );
    return 0;
}

// Loads a document with the schema of the format: tests validation, and the advice on what it refuses.

#include "FuzzTarget.h"
#include "LoadCheck.h"
#include "TemporaryFile.h"

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    static const Velquin::Pstn::Fuzz::TemporaryFile s_document( "document.xml" );
    s_document.write( in_pData, in_uSize );
    Velquin::Pstn::Fuzz::checkLoad( s_document.getPath(), PSTN_FUZZ_SCHEMA, false );
    return 0;
}

// Takes the input as the schema of a small document.

#include <cstddef>
#include <string_view>

#include "FuzzTarget.h"
#include "LoadCheck.h"
#include "TemporaryFile.h"

namespace {

/// The time of libxml2 doubles with each definition that refers twice to the next one, and no caller can stop it. A few
/// references are enough to show what they do to the library.
bool hasManyReferences( std::string_view in_strSchema ) {
    constexpr std::string_view REFERENCE = "ref";
    unsigned int uReferences = 0;
    for ( std::size_t u = in_strSchema.find( REFERENCE ); u != std::string_view::npos && uReferences <= 24;
          u = in_strSchema.find( REFERENCE, u + REFERENCE.size() ) )
        ++uReferences;
    return uReferences > 24;
}

} // namespace

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    if ( hasManyReferences( { reinterpret_cast<const char*>( in_pData ), in_uSize } ) )
        return 0;
    static const Velquin::Pstn::Fuzz::TemporaryFile s_schema( "schema.rng" );
    s_schema.write( in_pData, in_uSize );
    Velquin::Pstn::Fuzz::checkLoad( PSTN_FUZZ_SMALL_DOCUMENT, s_schema.getPath(), false );
    return 0;
}

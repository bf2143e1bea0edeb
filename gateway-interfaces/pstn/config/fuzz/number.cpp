// Checks that numbers are taken as a stream takes them, and whole numbers only with nothing but blanks behind.

#include "FuzzTarget.h"
#include "NumberCheck.h"

using namespace Velquin::Pstn;

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    const std::string strText( reinterpret_cast<const char*>( in_pData ), in_uSize );
    const char* const szFault = findNumberFault( strText );
    Fuzz::require( !szFault, szFault );
    return 0;
}

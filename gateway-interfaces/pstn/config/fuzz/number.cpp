// Numbers are taken as a stream takes them, or when they are digits only.

#include <cmath>
#include <locale>
#include <optional>
#include <sstream>
#include <string>

#include "FuzzTarget.h"
#include "xml/Number.h"

using namespace Velquin::Pstn;

namespace {

template <class T>
void checkNumber( const std::string& in_strText ) {
    std::istringstream stream( in_strText );
    stream.imbue( std::locale::classic() );
    T expected = 0;
    const bool bTaken = !( stream >> expected ).fail();
    const std::optional<T> leading = parseNumber<T>( in_strText, NumberPolicy::LEADING );
    Fuzz::require( leading.has_value() == bTaken, "a number is taken when a stream takes it" );
    const auto isNegative = []( T in_number ) { return std::signbit( static_cast<double>( in_number ) ); };
    Fuzz::require( !bTaken || ( *leading == expected && isNegative( *leading ) == isNegative( expected ) ),
                   "the number is that of a stream" );
    const bool bDigits = in_strText.find_first_not_of( "0123456789" ) == std::string::npos;
    Fuzz::require( parseNumber<T>( in_strText, NumberPolicy::WHOLE ) == ( bDigits ? leading : std::nullopt ),
                   "a whole number is digits only" );
}

} // namespace

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    const std::string strText( reinterpret_cast<const char*>( in_pData ), in_uSize );
    checkNumber<int>( strText );
    checkNumber<unsigned int>( strText );
    checkNumber<unsigned long long>( strText );
    checkNumber<double>( strText );
    return 0;
}

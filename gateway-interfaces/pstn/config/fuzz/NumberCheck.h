#pragma once

#include <algorithm>
#include <cmath>
#include <iterator>
#include <locale>
#include <optional>
#include <sstream>
#include <string>

#include "reading/Number.h"

namespace Velquin::Pstn {

/// What the parser of numbers does wrong: it differs from a stream, or takes a whole number with a minus in front or
/// more than blanks behind. Null when nothing is wrong.
template <class T>
const char* findNumberFault( const std::string& in_strText ) {
    std::istringstream stream( in_strText );
    stream.imbue( std::locale::classic() );
    T expected = 0;
    const bool bTaken = !( stream >> expected ).fail();
    const std::optional<T> leading = parseNumber<T>( in_strText, NumberPolicy::LEADING );
    if ( leading.has_value() != bTaken )
        return "a number is taken when a stream takes it";
    const auto isNegative = []( T in_number ) { return std::signbit( static_cast<double>( in_number ) ); };
    if ( bTaken && ( *leading != expected || isNegative( *leading ) != isNegative( expected ) ) )
        return "the number is that of a stream";
    const auto isBlank = []( char in_c ) { return std::isspace( in_c, std::locale::classic() ); };
    const auto itFirst = std::find_if_not( in_strText.begin(), in_strText.end(), isBlank );
    const bool bMinus = itFirst != in_strText.end() && *itFirst == '-';
    const bool bWhole =
        bTaken && !bMinus && std::all_of( std::istreambuf_iterator<char>( stream.rdbuf() ), {}, isBlank );
    if ( parseNumber<T>( in_strText, NumberPolicy::WHOLE ) != ( bWhole ? leading : std::nullopt ) )
        return "a whole number has no minus in front and nothing but blanks behind";
    return nullptr;
}

/// The same for all kinds of numbers that the readers take.
inline const char* findNumberFault( const std::string& in_strText ) {
    for ( const char* const szFault :
          { findNumberFault<int>( in_strText ), findNumberFault<unsigned int>( in_strText ),
            findNumberFault<unsigned long long>( in_strText ), findNumberFault<double>( in_strText ) } ) {
        if ( szFault )
            return szFault;
    }
    return nullptr;
}

} // namespace Velquin::Pstn

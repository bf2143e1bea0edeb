#include "reading/Number.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>
#include <type_traits>

namespace Velquin::Pstn {

namespace {

bool isDigit( char in_c ) {
    return in_c >= '0' && in_c <= '9';
}

/// Same as std::isspace in the "C" locale.
bool isBlank( char in_c ) {
    return in_c == ' ' || ( in_c >= '\t' && in_c <= '\r' );
}

/// Takes the digits at the front of the text, if their number fits the type.
template <std::unsigned_integral T>
std::optional<T> extractDigits( std::string_view& inout_strText, T in_max ) {
    T value = 0;
    std::size_t u = 0;
    for ( ; u < inout_strText.size() && isDigit( inout_strText[u] ); ++u ) {
        const auto digit = static_cast<T>( inout_strText[u] - '0' );
        if ( value > ( in_max - digit ) / 10 )
            return std::nullopt;
        value = static_cast<T>( 10 * value + digit );
    }
    if ( u == 0 )
        return std::nullopt;
    inout_strText.remove_prefix( u );
    return value;
}

template <std::integral T>
std::optional<T> extract( std::string_view& inout_strDigits, bool in_bNegative ) {
    using Unsigned = std::make_unsigned_t<T>;
    const Unsigned max = static_cast<Unsigned>( std::numeric_limits<T>::max() );
    const Unsigned limit = std::is_signed_v<T> && in_bNegative ? static_cast<Unsigned>( max + 1U ) : max;
    const std::optional<Unsigned> magnitude = extractDigits<Unsigned>( inout_strDigits, limit );
    if ( !magnitude )
        return std::nullopt;
    return static_cast<T>( in_bNegative ? static_cast<Unsigned>( 0U - *magnitude ) : *magnitude );
}

/// Whether a number that doesn't fit a floating-point type is too large; otherwise it is too small. The place of its
/// first digit tells.
bool isTooLarge( std::string_view in_strMantissa, std::string_view in_strExponent ) {
    const bool bNegative = in_strExponent.starts_with( '-' );
    if ( bNegative || in_strExponent.starts_with( '+' ) )
        in_strExponent.remove_prefix( 1 );
    const auto nPoint = static_cast<long long>( std::min( in_strMantissa.find( '.' ), in_strMantissa.size() ) );
    const auto nFirst = static_cast<long long>( in_strMantissa.find_first_of( "123456789" ) );
    unsigned int uExponent = 0;
    const auto [pEnd, eError] =
        std::from_chars( in_strExponent.data(), in_strExponent.data() + in_strExponent.size(), uExponent );
    if ( eError == std::errc::result_out_of_range )
        return !bNegative;
    return nPoint - nFirst + ( bNegative ? -static_cast<long long>( uExponent ) : uExponent ) > 0;
}

template <std::floating_point T>
std::optional<T> extract( std::string_view& inout_strNumber, bool in_bNegative ) {
    if ( inout_strNumber.empty() || !( isDigit( inout_strNumber.front() ) || inout_strNumber.front() == '.' ) )
        return std::nullopt; // from_chars would take "inf" and "nan", too
    const char* const pFirst = inout_strNumber.data();
    const char* const pLast = pFirst + inout_strNumber.size();
    T value = 0;
    const auto [pEnd, eError] = std::from_chars( pFirst, pLast, value );
    const auto isExponent = []( char in_c ) { return in_c == 'e' || in_c == 'E'; };
    const char* const pExponent = std::find_if( pFirst, pEnd, isExponent );
    if ( eError == std::errc::result_out_of_range ) {
        // A stream takes a number that is too small for the type as zero, and refuses one that is too large.
        const char* const pDigits = pExponent == pEnd ? pEnd : pExponent + 1;
        if ( isTooLarge( { pFirst, pExponent }, { pDigits, pEnd } ) )
            return std::nullopt;
        value = 0;
    } else if ( eError != std::errc{} ) {
        return std::nullopt;
    }
    // A stream takes the letter of an exponent as part of the number, and then fails without digits behind it.
    if ( pExponent == pEnd && pEnd != pLast && isExponent( *pEnd ) )
        return std::nullopt;
    inout_strNumber.remove_prefix( static_cast<std::size_t>( pEnd - pFirst ) );
    return in_bNegative ? -value : value;
}

} // namespace

template <class T>
requires std::integral<T> || std::floating_point<T> std::optional<T> parseNumber( std::string_view in_strText,
                                                                                  NumberPolicy in_ePolicy ) {
    while ( !in_strText.empty() && isBlank( in_strText.front() ) )
        in_strText.remove_prefix( 1 );
    const bool bNegative = !in_strText.empty() && in_strText.front() == '-';
    if ( bNegative || ( !in_strText.empty() && in_strText.front() == '+' ) )
        in_strText.remove_prefix( 1 );
    std::optional<T> number = extract<T>( in_strText, bNegative );
    if ( in_ePolicy == NumberPolicy::WHOLE &&
         ( bNegative || !std::all_of( in_strText.begin(), in_strText.end(), isBlank ) ) )
        return std::nullopt;
    return number;
}

template std::optional<int> parseNumber<int>( std::string_view, NumberPolicy );
template std::optional<unsigned int> parseNumber<unsigned int>( std::string_view, NumberPolicy );
template std::optional<unsigned long long> parseNumber<unsigned long long>( std::string_view, NumberPolicy );
template std::optional<double> parseNumber<double>( std::string_view, NumberPolicy );

} // namespace Velquin::Pstn

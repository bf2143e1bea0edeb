#pragma once

#include <concepts>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "PstnConfigExport.h"

namespace Velquin::Pstn {

/// How much of a text a number takes.
enum class NumberPolicy {
    LEADING, ///< what formatted stream extraction takes; anything may follow: "12abc" is 12
    WHOLE,   ///< the same, without a minus sign, and with nothing but blanks behind: " +12 " is 12; "12abc", "-1" fail
};

/// "The value must be a whole number from 0 to 4294967295."
template <class T>
std::string describeNumbers() {
    if constexpr ( std::floating_point<T> )
        return "The value must be a number.";
    else
        return "The value must be a whole number from " + std::to_string( std::numeric_limits<T>::min() ) + " to " +
               std::to_string( std::numeric_limits<T>::max() ) + ".";
}

/// The number in the text; nothing when there is none, or the type can't hold it. Agrees with
/// `std::istringstream >> number` in the "C" locale wherever the policy takes the text: an unsigned number with a minus
/// sign wraps around.
template <class T>
requires std::integral<T> || std::floating_point<T> VELQUIN_PSTN_CONFIG_EXPORT std::optional<T>
parseNumber( std::string_view in_strText, NumberPolicy in_ePolicy );

extern template VELQUIN_PSTN_CONFIG_EXPORT std::optional<int> parseNumber<int>( std::string_view, NumberPolicy );
extern template VELQUIN_PSTN_CONFIG_EXPORT std::optional<unsigned int> parseNumber<unsigned int>( std::string_view,
                                                                                                  NumberPolicy );
extern template VELQUIN_PSTN_CONFIG_EXPORT std::optional<unsigned long long>
    parseNumber<unsigned long long>( std::string_view, NumberPolicy );
extern template VELQUIN_PSTN_CONFIG_EXPORT std::optional<double> parseNumber<double>( std::string_view, NumberPolicy );

} // namespace Velquin::Pstn

#pragma once

#include <concepts>
#include <optional>
#include <string_view>

#include "PstnConfigExport.h"

namespace Velquin::Pstn {

/// How much of a text a number takes.
enum class NumberPolicy {
    LEADING, ///< what formatted stream extraction takes, and nothing is said of what follows: "12abc" is 12
    WHOLE, ///< the same, with no minus in front and nothing but blanks behind: " +12 " is 12, "12abc" and "-1" are none
};

/// The number that the text holds; nothing when it holds none or one that the type can't take. Agrees with
/// `std::istringstream >> number` in the "C" locale wherever the policy takes the text at all: an unsigned number with
/// a minus sign wraps around.
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

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// A character of a UTF-8 text as a terminal shows it.
struct Cell {
    std::size_t uBytes;   ///< in the text; 1 for a byte that is no UTF-8
    std::string strShown; ///< four blanks for a tab, a question mark for what a terminal would obey, <U+00A0> for what
                          ///< nobody would see or tell from a blank
    unsigned int uWidth;  ///< columns: 0 for a mark above another character, 2 for an ideograph, 4 for a tab
};

/// The first character of a text that isn't empty.
Cell getFirstCell( std::string_view in_strText );
/// The last character of a text that isn't empty.
Cell getLastCell( std::string_view in_strText );

/// Whether a byte continues a UTF-8 character.
constexpr bool isContinuation( char in_c ) {
    return ( static_cast<unsigned char>( in_c ) & 0xC0U ) == 0x80U;
}

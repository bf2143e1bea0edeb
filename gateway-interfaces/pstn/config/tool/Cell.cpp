#include "Cell.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <fmt/format.h>

namespace {

struct CodePoints {
    char32_t cFirst;
    char32_t cLast;
};

/// What acts instead of being shown: controls, and marks that turn the direction of writing.
constexpr CodePoints ACTING[] = { { 0x00, 0x1F },     { 0x7F, 0x9F },     { 0x061C, 0x061C }, { 0x200E, 0x200F },
                                  { 0x2028, 0x202E }, { 0x2066, 0x2069 }, { 0xFFF9, 0xFFFB } };

/// What looks like a blank and is none, or like nothing.
constexpr CodePoints HIDDEN[] = { { 0x00A0, 0x00A0 }, { 0x00AD, 0x00AD }, { 0x2000, 0x200B },
                                  { 0x202F, 0x202F }, { 0x205F, 0x2064 }, { 0xFEFF, 0xFEFF } };

/// Marks that stand on the character before them, and what joins or shapes characters.
constexpr CodePoints NARROW[] = {
    { 0x0300, 0x036F },   { 0x0483, 0x0489 },  { 0x0591, 0x05BD }, { 0x0610, 0x061A }, { 0x064B, 0x065F },
    { 0x06D6, 0x06DC },   { 0x06DF, 0x06E4 },  { 0x0730, 0x074A }, { 0x07A6, 0x07B0 }, { 0x07EB, 0x07F3 },
    { 0x0816, 0x0819 },   { 0x0898, 0x089F },  { 0x08CA, 0x0902 }, { 0x093C, 0x093C }, { 0x0941, 0x0948 },
    { 0x094D, 0x094D },   { 0x0951, 0x0957 },  { 0x0E31, 0x0E31 }, { 0x0E34, 0x0E3A }, { 0x0E47, 0x0E4E },
    { 0x0EB1, 0x0EB1 },   { 0x0EB4, 0x0EBC },  { 0x0F71, 0x0F7E }, { 0x0F80, 0x0F84 }, { 0x135D, 0x135F },
    { 0x17B7, 0x17BD },   { 0x17C9, 0x17D3 },  { 0x1AB0, 0x1ACE }, { 0x1DC0, 0x1DFF }, { 0x200C, 0x200D },
    { 0x20D0, 0x20F0 },   { 0x302A, 0x302D },  { 0x3099, 0x309A }, { 0xFE00, 0xFE0F }, { 0xFE20, 0xFE2F },
    { 0x1F3FB, 0x1F3FF }, { 0xE0100, 0xE01EF } };

/// Ideographs, syllables and pictures of two columns.
constexpr CodePoints WIDE[] = {
    { 0x1100, 0x115F },   { 0x231A, 0x231B },   { 0x2329, 0x232A },   { 0x23E9, 0x23EC },   { 0x2648, 0x2653 },
    { 0x26AA, 0x26AB },   { 0x26BD, 0x26BE },   { 0x2705, 0x2705 },   { 0x274C, 0x274C },   { 0x2753, 0x2755 },
    { 0x2795, 0x2797 },   { 0x2B1B, 0x2B1C },   { 0x2B50, 0x2B50 },   { 0x2E80, 0x303E },   { 0x3041, 0x3247 },
    { 0x3250, 0x4DBF },   { 0x4E00, 0xA4C6 },   { 0xA960, 0xA97C },   { 0xAC00, 0xD7A3 },   { 0xF900, 0xFAFF },
    { 0xFE10, 0xFE19 },   { 0xFE30, 0xFE6B },   { 0xFF01, 0xFF60 },   { 0xFFE0, 0xFFE6 },   { 0x16FE0, 0x1B2FB },
    { 0x1F18E, 0x1F18E }, { 0x1F191, 0x1F19A }, { 0x1F200, 0x1F320 }, { 0x1F32D, 0x1F335 }, { 0x1F337, 0x1F37C },
    { 0x1F37E, 0x1F393 }, { 0x1F3A0, 0x1F3CA }, { 0x1F3E0, 0x1F3F0 }, { 0x1F3F8, 0x1F43E }, { 0x1F440, 0x1F440 },
    { 0x1F442, 0x1F4FC }, { 0x1F4FF, 0x1F53D }, { 0x1F550, 0x1F567 }, { 0x1F5FB, 0x1F64F }, { 0x1F680, 0x1F6C5 },
    { 0x1F90C, 0x1F9FF }, { 0x1FA70, 0x1FAFF }, { 0x20000, 0x3FFFD } };

template <std::size_t uSize>
constexpr bool isAscending( const CodePoints ( &in_table )[uSize] ) {
    return std::is_sorted( std::begin( in_table ), std::end( in_table ),
                           []( const CodePoints& in_x, const CodePoints& in_y ) { return in_x.cLast < in_y.cFirst; } );
}
static_assert( isAscending( ACTING ) && isAscending( HIDDEN ) && isAscending( NARROW ) && isAscending( WIDE ) );

template <std::size_t uSize>
bool contains( const CodePoints ( &in_table )[uSize], char32_t in_c ) {
    const auto it = std::lower_bound( std::begin( in_table ), std::end( in_table ), in_c,
                                      []( const CodePoints& in_x, char32_t in_cY ) { return in_x.cLast < in_cY; } );
    return it != std::end( in_table ) && it->cFirst <= in_c;
}

/// Bytes of a character with that first byte; 0 for a byte that begins none.
std::size_t getLength( unsigned char in_byte ) {
    return in_byte < 0x80 ? 1 : in_byte < 0xC2 ? 0 : in_byte < 0xE0 ? 2 : in_byte < 0xF0 ? 3 : in_byte < 0xF5 ? 4 : 0;
}

} // namespace

Cell getFirstCell( std::string_view in_strText ) {
    const unsigned char byteFirst = static_cast<unsigned char>( in_strText[0] );
    const std::size_t uLength = getLength( byteFirst );
    const std::string_view strCharacter = in_strText.substr( 0, uLength );
    if ( uLength == 0 || strCharacter.size() < uLength ||
         !std::all_of( strCharacter.begin() + 1, strCharacter.end(), isContinuation ) )
        return { 1, "?", 1 };
    if ( byteFirst == '\t' )
        return { 1, "    ", 4 };
    // The first byte tells the length by its upper bits. The others have six bits each.
    char32_t c = uLength == 1 ? byteFirst : byteFirst & ( 0x7FU >> uLength );
    for ( const char cFollowing : strCharacter.substr( 1 ) )
        c = ( c << 6U ) | ( static_cast<unsigned char>( cFollowing ) & 0x3FU );
    if ( contains( ACTING, c ) )
        return { uLength, "?", 1 };
    if ( contains( HIDDEN, c ) ) {
        std::string strName = fmt::format( "<U+{:04X}>", static_cast<unsigned int>( c ) );
        const auto uWidth = static_cast<unsigned int>( strName.size() );
        return { uLength, std::move( strName ), uWidth };
    }
    return { uLength, std::string( strCharacter ), contains( NARROW, c ) ? 0U : contains( WIDE, c ) ? 2U : 1U };
}

Cell getLastCell( std::string_view in_strText ) {
    std::size_t uBegin = in_strText.size() - 1;
    while ( uBegin > 0 && in_strText.size() - uBegin < 4 && isContinuation( in_strText[uBegin] ) )
        --uBegin;
    const Cell cell = getFirstCell( in_strText.substr( uBegin ) );
    return uBegin + cell.uBytes == in_strText.size() ? cell : Cell{ 1, "?", 1 };
}

#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace Velquin::Pstn {

/// One keyword of the format and its value.
template <class E>
struct KeywordEntry {
    std::string_view strKeyword;
    E value;
};

/// The keywords of one enumeration, in the order in which they are compared. Two keywords may have one value: the first
/// of them is written.
template <class E, std::size_t N>
class KeywordTable {
public:
    consteval explicit KeywordTable( const KeywordEntry<E> ( &in_aEntries )[N] ) {
        for ( std::size_t u = 0; u < N; ++u ) {
            m_aEntries[u] = in_aEntries[u];
            m_aKeywords[u] = in_aEntries[u].strKeyword;
            for ( std::size_t uEarlier = 0; uEarlier < u; ++uEarlier ) {
                if ( m_aKeywords[uEarlier] == m_aKeywords[u] )
                    throw "a keyword stands twice in the table";
            }
        }
    }

    /// The value of the keyword (exact comparison); null for an unknown keyword.
    constexpr const E* find( std::string_view in_strKeyword ) const {
        for ( const auto& entry : m_aEntries ) {
            if ( entry.strKeyword == in_strKeyword )
                return &entry.value;
        }
        return nullptr;
    }

    /// The keyword to write for the value; empty for a value without one. The text ends with a zero.
    constexpr std::string_view keywordOf( const E& in_value ) const {
        for ( const auto& entry : m_aEntries ) {
            if ( entry.value == in_value )
                return entry.strKeyword;
        }
        return {};
    }

    constexpr const std::array<KeywordEntry<E>, N>& getEntries() const { return m_aEntries; }
    constexpr const std::array<std::string_view, N>& getKeywords() const { return m_aKeywords; }

private:
    std::array<KeywordEntry<E>, N> m_aEntries;
    std::array<std::string_view, N> m_aKeywords;
};

/// "Valid values are A, B and C."
/// @param in_values the values as texts, at least one
template <class TValues>
std::string describeValues( const TValues& in_values ) {
    std::string strText = in_values.size() == 1 ? "The only valid value is " : "Valid values are ";
    for ( std::size_t u = 0; u < in_values.size(); ++u ) {
        if ( u > 0 )
            strText += u + 1 == in_values.size() ? " and " : ", ";
        strText += in_values[u];
    }
    return strText += '.';
}

/// Makes the table of an enumeration. A table with a keyword twice does not compile.
template <class E, std::size_t N>
consteval KeywordTable<E, N> keywordTable( const KeywordEntry<E> ( &in_aEntries )[N] ) {
    return KeywordTable<E, N>( in_aEntries );
}

/// The format's keywords. Each enumeration has a table beside it.
namespace Keywords {

inline constexpr auto TRUE_FALSE = keywordTable<bool>( { { "TRUE", true }, { "FALSE", false } } );
inline constexpr auto YES_NO = keywordTable<bool>( { { "YES", true }, { "NO", false } } );
inline constexpr auto ENABLED_DISABLED = keywordTable<bool>( { { "ENABLED", true }, { "DISABLED", false } } );

} // namespace Keywords

} // namespace Velquin::Pstn

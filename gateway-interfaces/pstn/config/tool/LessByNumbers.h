#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

/// Orders texts as people do: digits count as numbers, so that b2di1 stands in front of b10di1.
struct LessByNumbers {
    bool operator()( std::string_view in_strX, std::string_view in_strY ) const {
        while ( !in_strX.empty() && !in_strY.empty() ) {
            const std::size_t uX = measureToken( in_strX );
            const std::size_t uY = measureToken( in_strY );
            const int nOrder = in_strX.substr( 0, uX ).compare( in_strY.substr( 0, uY ) );
            if ( uX != uY || nOrder != 0 )
                return uX != uY ? uX < uY : nOrder < 0;
            in_strX.remove_prefix( uX );
            in_strY.remove_prefix( uY );
        }
        return in_strX.size() < in_strY.size();
    }

private:
    /// The length of the number in front, or of the one character.
    static std::size_t measureToken( std::string_view in_strText ) {
        const std::size_t uDigits = std::min( in_strText.find_first_not_of( "0123456789" ), in_strText.size() );
        return std::max<std::size_t>( uDigits, 1 );
    }
};

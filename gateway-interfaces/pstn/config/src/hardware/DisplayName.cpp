#include "hardware/DisplayName.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <string_view>

#include <boost/regex.hpp>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "Text.h"

namespace Velquin::Pstn {

namespace {

bool isDisplayName( std::string_view in_strName ) {
    // The expression allows any run of some characters. Those that it has let pass are remembered: a large model has
    // thousands of names, and matching each would cost more than all else that is done with it.
    static std::array<std::atomic<bool>, 256> s_abPassed;
    const auto getPassed = []( char in_c ) -> std::atomic<bool>& {
        return s_abPassed[static_cast<unsigned char>( in_c )];
    };
    if ( std::all_of( in_strName.begin(), in_strName.end(),
                      [&]( char in_c ) { return getPassed( in_c ).load( std::memory_order_relaxed ); } ) )
        return true;
    static const boost::regex s_regex( "([-0-9a-zA-Z_ ]*)" );
    if ( !boost::regex_match( in_strName.begin(), in_strName.end(), s_regex ) )
        return false;
    for ( const char c : in_strName )
        getPassed( c ).store( true, std::memory_order_relaxed );
    return true;
}

} // namespace

bool assignDisplayName( std::string& out_strField, const char* in_szName, const Logger& in_logger ) noexcept try {
    return VELQUIN_ASSERT( in_szName != nullptr ) && isDisplayName( in_szName ) &&
           assignText( out_strField, in_szName, in_logger );
}
VELQUIN_CATCH_AND_RETURN( in_logger, false )

} // namespace Velquin::Pstn

#include "hardware/DisplayName.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string>
#include <string_view>

#include <boost/regex.hpp>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "Text.h"

namespace Velquin::Pstn {

namespace {

/// The characters that a name may have. The expression allows any run of certain characters, so it is asked once which
/// ones. A large model has thousands of names: to match each would cost more than all other work on it.
std::array<bool, 256> findAllowed() {
    const boost::regex regex( "([-0-9a-zA-Z_ ]*)" );
    std::array<bool, 256> abAllowed{};
    std::string strAll( abAllowed.size(), '\0' );
    std::iota( strAll.begin(), strAll.end(), '\0' );
    const boost::sregex_iterator itEnd;
    for ( boost::sregex_iterator it( strAll.begin(), strAll.end(), regex, boost::match_not_null ); it != itEnd; ++it ) {
        for ( const char c : it->str() )
            abAllowed[static_cast<unsigned char>( c )] = true;
    }
    return abAllowed;
}

bool isDisplayName( std::string_view in_strName ) {
    static const std::array<bool, 256> s_abAllowed = findAllowed();
    return std::all_of( in_strName.begin(), in_strName.end(),
                        []( char in_c ) { return s_abAllowed[static_cast<unsigned char>( in_c )]; } );
}

} // namespace

bool assignDisplayName( std::string& out_strField, const char* in_szName, const Logger& in_logger ) noexcept try {
    return VELQUIN_ASSERT( in_szName != nullptr ) && isDisplayName( in_szName ) &&
           assignText( out_strField, in_szName, in_logger );
}
VELQUIN_CATCH_AND_RETURN( in_logger, false )

} // namespace Velquin::Pstn

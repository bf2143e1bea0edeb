#include "hardware/DisplayName.h"

#include <boost/regex.hpp>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "Text.h"

namespace Velquin::Pstn {

bool assignDisplayName( std::string& out_strField, const char* in_szName, const Logger& in_logger ) noexcept try {
    static const boost::regex s_regex( "([-0-9a-zA-Z_ ]*)" );
    return VELQUIN_ASSERT( in_szName != nullptr ) && boost::regex_match( in_szName, s_regex ) &&
           assignText( out_strField, in_szName, in_logger );
}
VELQUIN_CATCH_AND_RETURN( in_logger, false )

} // namespace Velquin::Pstn

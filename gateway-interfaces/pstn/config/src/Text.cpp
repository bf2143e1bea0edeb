#include "Text.h"

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

bool assignText( std::string& out_strField, const char* in_szText, const Logger& in_logger ) noexcept try {
    if ( !VELQUIN_ASSERT( in_szText != nullptr ) )
        return false;
    out_strField = in_szText;
    return true;
}
VELQUIN_CATCH_AND_RETURN( in_logger, false )

} // namespace Velquin::Pstn

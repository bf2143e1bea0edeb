#pragma once

#include <string>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin::Pstn {

/// The body of a `write` for elements that are not written back: logs "Not implemented : " + the operation at ERROR,
/// and yields false.
inline bool reportNotImplemented( const Logger& in_logger, const char* in_szOperation ) noexcept try {
    VELQUIN_REPORT_ERROR( in_logger, "Not implemented : " << in_szOperation );
    return false;
}
VELQUIN_CATCH_AND_RETURN( in_logger, false )

/// The same with an assertion, where only a fault of the gateway's own code leads here.
inline bool assertNotImplemented( const Logger& in_logger, const char* in_szOperation, const char* in_szFile,
                                  int in_nLine ) noexcept try {
    const std::string strText = std::string( "Not implemented : " ) + in_szOperation;
    return static_cast<bool>( Assertion( false, strText.c_str(), in_szFile, in_nLine ) );
}
VELQUIN_CATCH_AND_RETURN( in_logger, false )

} // namespace Velquin::Pstn

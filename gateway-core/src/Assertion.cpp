#include <velquin/Assertion.h>

#include <string_view>

#include <velquin/Finding.h>

namespace Velquin {

namespace {

class AssertionLog {
    VELQUIN_LOGGER();
};

VELQUIN_LOGGER_IMPL( AssertionLog, "marovane.core.Assertion" );

std::string_view getBaseName( std::string_view in_strPath ) noexcept {
    // A compiler names sources with the separators of its own system.
    in_strPath.remove_prefix( in_strPath.find_last_of( "/\\" ) + 1 );
    return in_strPath.substr( 0, in_strPath.rfind( '.' ) );
}

} // namespace

void Assertion::fail( const char* in_szExpression, const char* in_szFile, int in_nLine ) noexcept {
    try {
        std::string strText( "Assertion failed: " );
        strText.append( in_szExpression ).append( ", file " ).append( getBaseName( in_szFile ) );
        strText.append( ", line " ).append( std::to_string( in_nLine ) );
        reportFinding( AssertionLog::getLogger(), Logger::ERROR_LEVEL, std::move( strText ), in_szFile, in_nLine );
    } catch ( ... ) {
        reportCurrentException( AssertionLog::getLogger(), "Assertion", in_szFile, in_nLine );
    }
}

} // namespace Velquin

#include <velquin/ParameterInfoDB.h>

#include <algorithm>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

namespace Velquin {

namespace {

class ParameterInfoDBLog {
    VELQUIN_LOGGER();
};

VELQUIN_LOGGER_IMPL( ParameterInfoDBLog, "marovane.core.ParameterInfoDB" );

} // namespace

ParameterInfoDB& ParameterInfoDB::getNonConstInstance() {
    // Never destroyed: libraries declare their parameters from static objects.
    static ParameterInfoDB& s_instance = *new ParameterInfoDB();
    return s_instance;
}

std::vector<ParameterInfoDB::ParameterInfo> ParameterInfoDB::getParameters() const {
    const std::lock_guard lock( m_mutex );
    return m_vecParameters;
}

bool ParameterInfoDB::addParameter( const char* in_szName, int in_nKind, bool in_bRequired, bool in_bReadOnly,
                                    bool in_bHidden, const char* in_szDescription ) try {
    if ( !VELQUIN_ASSERT( in_szName ) || !VELQUIN_ASSERT( in_szDescription ) )
        return false;
    ParameterInfo parameter{ in_szName, in_nKind, in_bRequired, in_bReadOnly, in_bHidden, in_szDescription };
    const std::lock_guard lock( m_mutex );
    if ( std::any_of( m_vecParameters.begin(), m_vecParameters.end(),
                      [&]( const ParameterInfo& in_other ) { return in_other.strName == parameter.strName; } ) )
        return false;
    m_vecParameters.push_back( std::move( parameter ) );
    return true;
}
VELQUIN_CATCH_AND_RETURN( ParameterInfoDBLog::getLogger(), false )

} // namespace Velquin

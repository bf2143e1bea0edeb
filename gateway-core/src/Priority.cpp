#include <velquin/Priority.h>

#include <algorithm>
#include <iterator>

namespace Velquin {

namespace {

/// The names, by code.
constexpr const char* NAMES[] = { "LOWEST", "LOW", "NORMAL", "HIGH", "HIGHEST" };
static_assert( std::size( NAMES ) == Priority::HIGHEST + 1 );

} // namespace

Priority::Priority( const std::string& in_strName ) noexcept {
    const auto it = std::find( std::begin( NAMES ), std::end( NAMES ), in_strName );
    m_nCode = it == std::end( NAMES ) ? INVALID : static_cast<int>( it - std::begin( NAMES ) );
}

const char* Priority::getName() const noexcept {
    return isValid() ? NAMES[m_nCode] : "";
}

std::string Priority::getSupportedPrioritiesDescription() {
    std::string strNames;
    for ( const char* szName : NAMES )
        strNames.append( strNames.empty() ? "" : ", " ).append( szName );
    return strNames;
}

} // namespace Velquin

#include <velquin/StringVector.h>

#include <utility>

namespace Velquin {

void strTokenize( std::string_view in_strText, StringVector& out_vecFields, char in_cSeparator ) {
    // The text may be one of the old fields.
    StringVector vecFields;
    if ( !in_strText.empty() ) {
        std::size_t uEnd;
        while ( ( uEnd = in_strText.find( in_cSeparator ) ) != std::string_view::npos ) {
            vecFields.emplace_back( in_strText.substr( 0, uEnd ) );
            in_strText.remove_prefix( uEnd + 1 );
        }
        vecFields.emplace_back( in_strText );
    }
    out_vecFields = std::move( vecFields );
}

} // namespace Velquin

#pragma once

#include <string>
#include <string_view>

#include "ConfigTest.h"

// Changes to the complete document by element and attribute. A path is that of the schema, without positions; the
// first element that has it counts.

namespace Velquin::Pstn::Test {

/// Where the start tag stands in the text, and how long it is.
struct Tag {
    std::size_t uBegin = 0;
    std::size_t uLength = 0;
};

inline Tag findTag( const std::string& in_strText, std::string_view in_strPath ) {
    Tag tag;
    while ( !in_strPath.empty() ) {
        in_strPath.remove_prefix( 1 );
        const std::string strTag = "<" + std::string( in_strPath.substr( 0, in_strPath.find( '/' ) ) );
        do
            tag.uBegin = in_strText.find( strTag, tag.uBegin + 1 );
        while ( tag.uBegin != std::string::npos &&
                std::string_view( " />" ).find( in_strText[tag.uBegin + strTag.size()] ) == std::string_view::npos );
        if ( tag.uBegin == std::string::npos ) {
            ADD_FAILURE() << "not in the document: " << in_strPath;
            return {};
        }
        in_strPath.remove_prefix( strTag.size() - 1 );
    }
    tag.uLength = in_strText.find( '>', tag.uBegin ) + 1 - tag.uBegin;
    return tag;
}

/// The tag without the attribute.
inline std::string removeAttribute( std::string in_strTag, const std::string& in_strAttribute ) {
    const std::size_t uBegin = in_strTag.find( " " + in_strAttribute + "=\"" );
    if ( uBegin != std::string::npos )
        in_strTag.erase( uBegin, in_strTag.find( '"', uBegin + in_strAttribute.size() + 3 ) + 1 - uBegin );
    return in_strTag;
}

/// The tag with that value of the attribute.
inline std::string setAttribute( const std::string& in_strTag, const std::string& in_strAttribute,
                                 const std::string& in_strValue ) {
    std::string strTag = removeAttribute( in_strTag, in_strAttribute );
    return strTag.insert( strTag.find_first_of( " />" ), " " + in_strAttribute + "=\"" + in_strValue + "\"" );
}

} // namespace Velquin::Pstn::Test

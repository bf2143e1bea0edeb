#pragma once

#include <regex>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

// Changes to a document by element and attribute. A path is that of the schema or its end, "/a/b[2]": the first element
// that has it counts, unless a position says which.

namespace Velquin::Pstn::Test {

/// Where the start tag stands in the text, and how long it is.
struct Tag {
    std::size_t uBegin = 0;
    std::size_t uLength = 0;
};

inline Tag findTag( const std::string& in_strText, const std::string& in_strPath ) {
    static const std::regex s_step( R"(/([^/[]+)(?:\[(\d+)\])?)" );
    Tag tag;
    for ( std::sregex_iterator it( in_strPath.begin(), in_strPath.end(), s_step ), end; it != end; ++it ) {
        const std::string strTag = "<" + ( *it )[1].str();
        for ( int nLeft = ( *it )[2].matched ? std::stoi( ( *it )[2] ) : 1; nLeft > 0; --nLeft ) {
            do
                tag.uBegin = in_strText.find( strTag, tag.uBegin + 1 );
            while ( tag.uBegin != std::string::npos &&
                    std::string_view( " />" ).find( in_strText[tag.uBegin + strTag.size()] ) ==
                        std::string_view::npos );
        }
        if ( tag.uBegin == std::string::npos ) {
            ADD_FAILURE() << "not in the document: " << in_strPath;
            return {};
        }
    }
    tag.uLength = in_strText.find( '>', tag.uBegin ) + 1 - tag.uBegin;
    return tag;
}

/// How long the element is that begins with the tag; none of its name stands in it.
inline std::size_t getElementLength( const std::string& in_strText, const Tag& in_tag ) {
    const std::string strTag = in_strText.substr( in_tag.uBegin, in_tag.uLength );
    if ( strTag.ends_with( "/>" ) )
        return in_tag.uLength;
    const std::string strEnd = "</" + strTag.substr( 1, strTag.find_first_of( " >" ) - 1 ) + ">";
    return in_strText.find( strEnd, in_tag.uBegin ) + strEnd.size() - in_tag.uBegin;
}

/// The tag without the attribute.
inline std::string removeAttribute( const std::string& in_strTag, const std::string& in_strAttribute ) {
    return std::regex_replace( in_strTag, std::regex( " " + in_strAttribute + "=\"[^\"]*\"" ), "" );
}

/// The tag with that value of the attribute.
inline std::string setAttribute( const std::string& in_strTag, const std::string& in_strAttribute,
                                 const std::string& in_strValue ) {
    std::string strTag = removeAttribute( in_strTag, in_strAttribute );
    return strTag.insert( strTag.size() - ( strTag.ends_with( "/>" ) ? 2 : 1 ),
                          " " + in_strAttribute + "=\"" + in_strValue + "\"" );
}

} // namespace Velquin::Pstn::Test

// Prints a fuzzer's dictionary: make_dictionary --described|--used FILE...
// --described: the elements, attributes and keywords that RELAX NG schemas describe, for fuzzing documents. A test
// compares the keywords with the library's tables. --used: the elements, attributes and values of the files themselves,
// for fuzzing schemas.

#include <cctype>
#include <cstdio>
#include <iostream>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include <libxml/parser.h>
#include <libxml/tree.h>

namespace {

struct XmlDeleter {
    void operator()( xmlDoc* in_p ) const noexcept { xmlFreeDoc( in_p ); }
    void operator()( xmlChar* in_p ) const noexcept { xmlFree( in_p ); }
};

using Tokens = std::set<std::string>;

std::string toText( const xmlChar* in_sz ) {
    return in_sz ? reinterpret_cast<const char*>( in_sz ) : "";
}

std::string getContent( const xmlNode* in_pNode ) {
    return toText( std::unique_ptr<xmlChar, XmlDeleter>( xmlNodeGetContent( in_pNode ) ).get() );
}

void addDescribed( xmlNode* in_pElement, Tokens& inout_tokens ) {
    const std::string strKind = toText( in_pElement->name );
    const std::string strName =
        toText( std::unique_ptr<xmlChar, XmlDeleter>( xmlGetNoNsProp( in_pElement, BAD_CAST "name" ) ).get() );
    if ( strKind == "element" && !strName.empty() )
        inout_tokens.insert( { strName, "<" + strName + " " } );
    else if ( strKind == "attribute" && !strName.empty() )
        inout_tokens.insert( " " + strName + "=\"" );
    else if ( strKind == "value" )
        inout_tokens.insert( "\"" + getContent( in_pElement ) + "\"" );
}

void addUsed( const xmlNode* in_pElement, Tokens& inout_tokens ) {
    const std::string strName = toText( in_pElement->name );
    inout_tokens.insert( { "<" + strName + ">", "</" + strName + ">", "<" + strName + "/>" } );
    for ( const xmlAttr* pAttribute = in_pElement->properties; pAttribute; pAttribute = pAttribute->next )
        inout_tokens.insert( { " " + toText( pAttribute->name ) + "=\"",
                               "\"" + getContent( reinterpret_cast<const xmlNode*>( pAttribute ) ) + "\"" } );
}

void collect( xmlNode* in_pElement, bool in_bDescribed, Tokens& inout_tokens ) {
    if ( in_bDescribed )
        addDescribed( in_pElement, inout_tokens );
    else
        addUsed( in_pElement, inout_tokens );
    for ( xmlNode* pChild = in_pElement->children; pChild; pChild = pChild->next ) {
        if ( pChild->type == XML_ELEMENT_NODE )
            collect( pChild, in_bDescribed, inout_tokens );
    }
}

void print( std::string_view in_strToken ) {
    std::cout << '"';
    for ( const char c : in_strToken ) {
        const auto uByte = static_cast<unsigned char>( c );
        if ( c == '"' || c == '\\' ) {
            std::cout << '\\' << c;
        } else if ( std::isprint( uByte ) ) {
            std::cout << c;
        } else {
            char szHex[5];
            std::snprintf( szHex, sizeof( szHex ), "\\x%02X", static_cast<unsigned int>( uByte ) );
            std::cout << szHex;
        }
    }
    std::cout << "\"\n";
}

} // namespace

int main( int argc, char** argv ) {
    const std::string_view strMode = argc > 2 ? argv[1] : "";
    if ( strMode != "--described" && strMode != "--used" ) {
        std::cerr << "usage: make_dictionary --described|--used FILE...\n";
        return 2;
    }
    Tokens tokens;
    for ( int n = 2; n < argc; ++n ) {
        const std::unique_ptr<xmlDoc, XmlDeleter> pDocument( xmlReadFile( argv[n], nullptr, XML_PARSE_NONET ) );
        if ( !pDocument )
            return 2;
        collect( xmlDocGetRootElement( pDocument.get() ), strMode == "--described", tokens );
    }
    for ( const std::string& strToken : tokens ) {
        // libFuzzer refuses a dictionary with a longer token.
        if ( strToken.size() <= 64 )
            print( strToken );
    }
    return std::cout.flush() ? 0 : 1;
}

#include "LogCapture.h"

#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <sstream>

#include <gmock/gmock.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <velquin/HashMapVector.h>
#include <velquin/StringVector.h>
#include <velquin/XML.h>
#include <velquin/XMLDocOutputStreamable.h>

namespace Velquin::Test {

/// A key; all keys have one hash.
struct SameHash {
    int n;
    friend bool operator==( const SameHash&, const SameHash& ) = default;
};

} // namespace Velquin::Test

template <>
struct std::hash<Velquin::Test::SameHash> {
    std::size_t operator()( const Velquin::Test::SameHash& ) const noexcept { return 7; }
};

namespace Velquin::Test {
namespace {

TEST( StrTokenize, Fields ) {
    struct Case {
        const char* szText;
        StringVector vecFields;
    };
    for ( const Case& c : { Case{ "", {} },
                            { "a", { "a" } },
                            { ",", { "", "" } },
                            { "a,", { "a", "" } },
                            { ",a", { "", "a" } },
                            { "a,,b", { "a", "", "b" } },
                            { " a , b ", { " a ", " b " } } } ) {
        StringVector vecFields{ "old" };
        strTokenize( c.szText, vecFields, ',' );
        EXPECT_EQ( vecFields, c.vecFields ) << '"' << c.szText << '"';
    }
    StringVector vecFields{ "a long field that doesn't fit in place;b" };
    strTokenize( vecFields[0], vecFields, ';' );
    EXPECT_EQ( vecFields, ( StringVector{ "a long field that doesn't fit in place", "b" } ) );
}

TEST( HashMapVector, KeepsOrderAndFirstValues ) {
    HashMapVector<std::string, int> map;
    for ( const auto& [szKey, nValue] : { std::pair( "z", 1 ), { "a", 2 }, { "m", 3 } } )
        EXPECT_TRUE( map.insert( szKey, nValue ) );
    EXPECT_FALSE( map.insert( "a", 9 ) );
    EXPECT_THAT( map,
                 testing::ElementsAre( testing::Pair( "z", 1 ), testing::Pair( "a", 2 ), testing::Pair( "m", 3 ) ) );
    EXPECT_EQ( map.find( "m" )->second, 3 );
    EXPECT_EQ( map.find( "b" ), map.end() );
}

TEST( HashMapVector, TellsKeysOfOneHashApart ) {
    HashMapVector<SameHash, int> map;
    for ( int n = 0; n < 20; ++n )
        EXPECT_TRUE( map.insert( { n }, n * n ) );
    EXPECT_FALSE( map.insert( { 7 }, 0 ) );
    EXPECT_EQ( map.size(), 20u );
    for ( int n = 0; n < 20; ++n )
        EXPECT_EQ( map.find( { n } )->second, n * n );
    EXPECT_EQ( map.find( { 20 } ), map.end() );
}

TEST( Xml, FindFunctionsSeeElementsOnly ) {
    const std::string strDocument = "<r>text<!--a--><?a b?><a/>text<![CDATA[b]]><b/><!--a--><a id='2'/></r>";
    const std::unique_ptr<xmlDoc, void ( * )( xmlDoc* )> pDocument(
        xmlReadMemory( strDocument.data(), static_cast<int>( strDocument.size() ), nullptr, nullptr, 0 ), xmlFreeDoc );
    ASSERT_TRUE( pDocument );
    const xmlNode* const pRoot = xmlDocGetRootElement( pDocument.get() );
    const xmlNode* const pA = XML::findFirstElement( pRoot );
    const xmlNode* const pB = XML::findNextElement( pA );
    const xmlNode* const pLast = XML::findNextElement( pA, "a" );
    ASSERT_TRUE( pA && pB && pLast );
    EXPECT_STREQ( reinterpret_cast<const char*>( pB->name ), "b" );
    EXPECT_EQ( pLast, pRoot->last );
    EXPECT_EQ( XML::findFirstElement( pRoot, "a" ), pA );
    EXPECT_EQ( XML::findFirstElement( pRoot, "b" ), pB );
    for ( const xmlNode* pNone :
          { XML::findFirstElement( pRoot, "aa" ), XML::findFirstElement( pA ), XML::findNextElement( pLast ),
            XML::findNextElement( pB, "b" ), XML::findFirstElement( nullptr ), XML::findNextElement( nullptr ) } )
        EXPECT_FALSE( pNone );
}

struct Streamable : XMLSTLDocOutputStreamableImpl {
    using Writer = std::function<bool( xmlDoc* )>;
    explicit Streamable( Writer in_writer ) : writer( std::move( in_writer ) ) {}
    bool writeXML( xmlDoc* in_pDocument ) const override { return writer( in_pDocument ); }
    Writer writer;
};

Streamable::Writer writeText( const char* in_szText ) {
    return [in_szText]( xmlDoc* in_pDocument ) {
        xmlNode* const pRoot = xmlNewDocNode( in_pDocument, nullptr, BAD_CAST "r", nullptr );
        if ( !pRoot )
            throw std::bad_alloc(); // which later versions of libxml2 don't tell
        xmlDocSetRootElement( in_pDocument, pRoot );
        xmlNewProp( xmlNewChild( pRoot, nullptr, BAD_CAST "a", nullptr ), BAD_CAST "t", BAD_CAST in_szText );
        return true;
    };
}

const char* const WRITTEN = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r>\n  <a t=\"&lt;\xC3\xA9\"/>\n</r>\n";

TEST( XmlStreaming, WritesAllOrNothing ) {
    struct Case {
        Streamable::Writer writer;
        const char* szWritten;
        const char* szError = nullptr;
    };
    const Case aCases[] = {
        { writeText( "<\xC3\xA9" ), WRITTEN },
        { []( xmlDoc* in_pDocument ) { return !writeText( "refused" )( in_pDocument ); }, "" },
        { []( xmlDoc* ) -> bool { throw std::bad_alloc(); }, "", "out of memory in writeTo" },
        { []( xmlDoc* ) -> bool { throw 1; }, "", "writeTo failed" },
        { writeText( "\xE9" ), "", "writeTo failed: a text is not UTF-8" },
    };
    for ( const Case& c : aCases ) {
        const LogCapture log;
        std::ostringstream stream;
        stream.exceptions( std::ios::failbit );
        EXPECT_NO_THROW( stream << Streamable( c.writer ) );
        EXPECT_EQ( stream.str(), c.szWritten );
        EXPECT_EQ( stream.fail(), !*c.szWritten );
        std::vector<LogCapture::Record> vecErrors;
        if ( c.szError )
            vecErrors.push_back( { 40000, "marovane.core.XMLSTLDocOutputStreamableImpl", c.szError } );
        EXPECT_EQ( log.getRecords(), vecErrors );
    }
    EXPECT_EQ( XML::getOpenCount(), 0u );
}

int s_nAllocationsLeft = 0;

// libxml2's writer loses the text for which it finds no memory and goes on.
TEST( XmlStreaming, NoPartIsWrittenWhereverMemoryEnds ) {
    const LogCapture log;
    const std::string strText( 20000, 'x' );
    std::ostringstream whole;
    whole << Streamable( writeText( strText.c_str() ) );
    xmlFreeFunc pfnFree;
    xmlMallocFunc pfnMalloc;
    xmlReallocFunc pfnRealloc;
    xmlStrdupFunc pfnStrdup;
    xmlMemGet( &pfnFree, &pfnMalloc, &pfnRealloc, &pfnStrdup );
    std::size_t uFailures = 0;
    for ( bool bWritten = false; !bWritten; uFailures += !bWritten ) {
        std::ostringstream stream;
        s_nAllocationsLeft = static_cast<int>( uFailures );
        xmlMemSetup(
            std::free, []( std::size_t n ) { return s_nAllocationsLeft-- > 0 ? std::malloc( n ) : nullptr; },
            []( void* p, std::size_t n ) { return s_nAllocationsLeft-- > 0 ? std::realloc( p, n ) : nullptr; },
            pfnStrdup );
        stream << Streamable( writeText( strText.c_str() ) );
        xmlMemSetup( pfnFree, pfnMalloc, pfnRealloc, pfnStrdup );
        bWritten = !stream.fail();
        ASSERT_EQ( stream.str(), bWritten ? whole.str() : "" ) << uFailures;
    }
    EXPECT_GT( uFailures, 10u );
    EXPECT_EQ( log.getRecords( 40000 ).size(), uFailures );
}

} // namespace
} // namespace Velquin::Test

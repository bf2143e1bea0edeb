#include "document/DocumentBlocks.h"

#include <algorithm>
#include <new>
#include <type_traits>

#include <libxml/parserInternals.h>

#include "document/Element.h"
#include "document/LibXml2.h"

namespace Velquin::Pstn {

namespace {

/// An attribute as the parser hands it over.
enum AttributeField { NAME, PREFIX, URI, VALUE, VALUE_END, ATTRIBUTE_FIELDS };

/// An ampersand in a value as the parser hands it over: whoever builds the node resolves it.
constexpr std::string_view AMPERSAND = "&#38;";

/// The namespace of a declared prefix.
xmlNs* getNamespace( xmlNode* in_pElement, const xmlChar* in_szPrefix ) {
    if ( xmlNs* const pNamespace = xmlSearchNs( in_pElement->doc, in_pElement, in_szPrefix ) )
        return pNamespace;
    throw std::bad_alloc(); // libxml2 allocates the namespace of "xml" at its first use
}

/// The value of an attribute. A document has no other entities: it can't declare any.
std::string resolveAmpersands( std::string_view in_strValue ) {
    std::string strValue;
    for ( std::size_t u = in_strValue.find( AMPERSAND ); u != std::string_view::npos;
          u = in_strValue.find( AMPERSAND ) ) {
        strValue.append( in_strValue.substr( 0, u ) ).append( 1, '&' );
        in_strValue.remove_prefix( u + AMPERSAND.size() );
    }
    return strValue.append( in_strValue );
}

bool isBlank( std::string_view in_strText ) {
    return in_strText.find_first_not_of( " \t\r\n" ) == std::string_view::npos;
}

bool isText( const xmlNode* in_pNode ) {
    return in_pNode && in_pNode->type == XML_TEXT_NODE;
}

} // namespace

void DocumentBlocks::startElement( xmlDoc* in_pDocument, const StartTag& in_tag, ElementPosition in_position ) {
    endText( false );
    auto* const pElement = add<xmlNode>();
    pElement->type = XML_ELEMENT_NODE;
    pElement->name = in_tag.szName;
    pElement->doc = in_pDocument;
    setElementPosition( pElement, in_position );
    if ( m_pOpen )
        appendToOpenElement( pElement );
    else
        m_pRoot = pElement;
    m_pOpen = pElement;
    addNamespaces( in_tag );
    addAttributes( in_tag );
}

void DocumentBlocks::addText( std::string_view in_strText ) {
    m_strText.append( in_strText );
}

void DocumentBlocks::endElement() {
    endText( true );
    m_pOpen = m_pOpen == m_pRoot ? nullptr : m_pOpen->parent;
}

/// A zeroed T, with room for more data behind it.
template <class T>
T* DocumentBlocks::add( std::size_t in_uBytes ) {
    static_assert( std::is_trivial_v<T> );
    return new ( m_memory.allocate( in_uBytes, alignof( T ) ) ) T{};
}

xmlNode* DocumentBlocks::addTextNode( xmlDoc* in_pDocument, std::string_view in_strText ) {
    auto* const pText = add<xmlNode>( sizeof( xmlNode ) + in_strText.size() + 1 );
    pText->type = XML_TEXT_NODE;
    pText->name = xmlStringText;
    pText->doc = in_pDocument;
    pText->content = reinterpret_cast<xmlChar*>( pText + 1 );
    *std::copy( in_strText.begin(), in_strText.end(), pText->content ) = 0;
    return pText;
}

void DocumentBlocks::addNamespaces( const StartTag& in_tag ) {
    xmlNs** ppNamespace = &m_pOpen->nsDef;
    const xmlChar* const* aszFields = in_tag.aszNamespaces;
    for ( int i = 0; i < in_tag.nNamespaces; ++i ) {
        auto* const pNamespace = add<xmlNs>();
        pNamespace->type = XML_LOCAL_NAMESPACE;
        pNamespace->prefix = *aszFields++;
        pNamespace->href = *aszFields++;
        *ppNamespace = pNamespace;
        ppNamespace = &pNamespace->next;
    }
    if ( in_tag.szUri )
        m_pOpen->ns = getNamespace( m_pOpen, in_tag.szPrefix );
}

void DocumentBlocks::addAttributes( const StartTag& in_tag ) {
    xmlAttr* pLast = nullptr;
    const xmlChar* const* aszFields = in_tag.aszAttributes;
    for ( int i = 0; i < in_tag.nAttributes; ++i, aszFields += ATTRIBUTE_FIELDS ) {
        auto* const pAttribute = add<xmlAttr>();
        pAttribute->type = XML_ATTRIBUTE_NODE;
        pAttribute->name = aszFields[NAME];
        pAttribute->parent = m_pOpen;
        pAttribute->doc = m_pOpen->doc;
        if ( aszFields[URI] )
            pAttribute->ns = getNamespace( m_pOpen, aszFields[PREFIX] );
        setValue( *pAttribute, { fromXml( aszFields[VALUE] ),
                                 static_cast<std::size_t>( aszFields[VALUE_END] - aszFields[VALUE] ) } );
        pAttribute->prev = pLast;
        ( pLast ? pLast->next : m_pOpen->properties ) = pAttribute;
        pLast = pAttribute;
    }
}

void DocumentBlocks::setValue( xmlAttr& inout_attribute, std::string_view in_strValue ) {
    xmlNode* pText = nullptr;
    if ( in_strValue.find( '&' ) != std::string_view::npos ) {
        pText = addTextNode( inout_attribute.doc, resolveAmpersands( in_strValue ) );
    } else if ( in_strValue.size() <= sizeof( SharedText::ullText ) ) {
        pText = getSharedText( inout_attribute.doc, in_strValue );
    } else {
        pText = addTextNode( inout_attribute.doc, in_strValue );
        pText->parent = reinterpret_cast<xmlNode*>( &inout_attribute );
    }
    inout_attribute.children = inout_attribute.last = pText;
}

/// The node of a text of up to eight characters, none of them NUL. Most are numbers and keywords: a file repeats them.
xmlNode* DocumentBlocks::getSharedText( xmlDoc* in_pDocument, std::string_view in_strText ) {
    std::uint64_t ullText = 0;
    std::copy( in_strText.begin(), in_strText.end(), reinterpret_cast<char*>( &ullText ) );
    SharedText& shared = m_aSharedTexts[ullText * 0x9E3779B97F4A7C15U >> 55]; // Fibonacci hashing to nine bits
    if ( !shared.pText || shared.ullText != ullText )
        shared = { ullText, addTextNode( in_pDocument, in_strText ) };
    return shared.pText;
}

void DocumentBlocks::appendToOpenElement( xmlNode* in_pNode ) noexcept {
    in_pNode->parent = m_pOpen;
    in_pNode->prev = m_pOpen->last;
    ( m_pOpen->last ? m_pOpen->last->next : m_pOpen->children ) = in_pNode;
    m_pOpen->last = in_pNode;
}

/// Makes a node of the text since the last tag. Leaves out blanks between elements, as libxml2's XML_PARSE_NOBLANKS
/// does: blanks stay beside other text, and where an element holds nothing else.
void DocumentBlocks::endText( bool in_bElementEnds ) {
    if ( m_strText.empty() )
        return;
    const bool bLeaf = in_bElementEnds && m_pOpen && !m_pOpen->children;
    if ( m_pOpen && ( bLeaf || !isBlank( m_strText ) || isText( m_pOpen->children ) || isText( m_pOpen->last ) ) )
        appendToOpenElement( addTextNode( m_pOpen->doc, m_strText ) );
    m_strText.clear();
}

} // namespace Velquin::Pstn

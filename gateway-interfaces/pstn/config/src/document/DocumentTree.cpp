#include "document/DocumentTree.h"

#include <algorithm>
#include <new>
#include <type_traits>
#include <utility>

#include <libxml/parserInternals.h>

#include "document/ElementPosition.h"
#include "document/LibXml2.h"
#include "reading/ChildElements.h"

namespace Velquin::Pstn {

namespace {

constexpr std::size_t BLOCK_BYTES = 32768;
constexpr std::size_t ALIGNMENT = alignof( xmlNode );

/// What libxml2 hands over of each attribute.
enum AttributeField { NAME, PREFIX, URI, VALUE, VALUE_END, ATTRIBUTE_FIELDS };

/// The namespace of a prefix that is declared.
xmlNs* getNamespace( xmlNode* in_pElement, const xmlChar* in_szPrefix ) {
    if ( xmlNs* const pNamespace = xmlSearchNs( in_pElement->doc, in_pElement, in_szPrefix ) )
        return pNamespace;
    throw std::bad_alloc(); // libxml2 makes that of "xml" at its first use
}

/// Frees what libxml2 allocated below an element: all that is no element, and declarations of namespaces.
void freeAllocatedNodes( xmlNode* inout_pElement ) {
    xmlFreeNsList( inout_pElement->nsDef );
    for ( xmlNode* pChild = inout_pElement->children; pChild; ) {
        xmlNode* const pNext = pChild->next;
        if ( pChild->type == XML_ELEMENT_NODE )
            freeAllocatedNodes( pChild ); // no deeper than libxml2 parses, 256
        else
            xmlFreeNode( pChild );
        pChild = pNext;
    }
}

} // namespace

/// Memory that is handed out from its beginning to its end, and freed when all of it was taken back.
class DocumentTree::Block {
public:
    explicit Block( std::size_t in_uBytes )
        : m_pMemory( std::make_unique_for_overwrite<std::byte[]>( in_uBytes ) ),
          m_pFree( m_pMemory.get() ),
          m_uFree( in_uBytes ) {}

    bool hasRoomFor( std::size_t in_uBytes ) const noexcept { return in_uBytes <= m_uFree; }
    void* handOut( std::size_t in_uBytes ) noexcept {
        m_uFree -= in_uBytes;
        ++m_uInUse;
        return std::exchange( m_pFree, m_pFree + in_uBytes );
    }
    void takeBack() noexcept {
        if ( --m_uInUse > 0 )
            return;
        m_pMemory.reset();
        m_uFree = 0;
    }

private:
    std::unique_ptr<std::byte[]> m_pMemory;
    std::byte* m_pFree;
    std::size_t m_uFree;
    std::size_t m_uInUse = 0;
};

DocumentTree::DocumentTree() = default;

DocumentTree::~DocumentTree() {
    if ( !m_pDocument )
        return;
    for ( xmlNode* const pValue : m_vecReferring )
        xmlFreeNodeList( pValue );
    if ( xmlNode* const pRoot = xmlDocGetRootElement( m_pDocument ) ) {
        freeAllocatedNodes( pRoot );
        xmlUnlinkNode( pRoot );
    }
    xmlFreeDoc( m_pDocument );
}

void DocumentTree::startElement( xmlParserCtxt* inout_pContext, const xmlChar* in_szName, const xmlChar* in_szPrefix,
                                 const xmlChar* in_szUri, int in_nNamespaces, const xmlChar** in_aszNamespaces,
                                 int in_nAttributes, const xmlChar** in_aszAttributes ) {
    xmlDoc* const pDocument = inout_pContext->myDoc;
    xmlNode* const pParent = inout_pContext->node ? inout_pContext->node : reinterpret_cast<xmlNode*>( pDocument );
    auto* const pElement = add<xmlNode>( m_elements );
    pElement->type = XML_ELEMENT_NODE;
    pElement->name = in_szName;
    pElement->doc = pDocument;
    if ( inout_pContext->input && inout_pContext->input->line > 0 )
        setElementLine( pElement, static_cast<unsigned long long>( inout_pContext->input->line ) );

    inout_pContext->nodemem = -1; // text that follows doesn't go on with what was before
    if ( nodePush( inout_pContext, pElement ) < 0 )
        return; // and libxml2 has ended the parse
    xmlAddChild( pParent, pElement );

    xmlNs** ppNamespace = &pElement->nsDef;
    for ( int i = 0; i < in_nNamespaces; ++i, in_aszNamespaces += 2 ) { // prefix and URI
        *ppNamespace = xmlNewNs( nullptr, in_aszNamespaces[1], in_aszNamespaces[0] );
        if ( !*ppNamespace )
            throw std::bad_alloc();
        ppNamespace = &( *ppNamespace )->next;
    }
    if ( in_szUri )
        pElement->ns = getNamespace( pElement, in_szPrefix );

    xmlAttr* pLast = nullptr;
    for ( int i = 0; i < in_nAttributes; ++i, in_aszAttributes += ATTRIBUTE_FIELDS ) {
        xmlAttr* const pAttribute = addAttribute( pElement, in_aszAttributes );
        pAttribute->prev = pLast;
        ( pLast ? pLast->next : pElement->properties ) = pAttribute;
        pLast = pAttribute;
    }
}

void DocumentTree::takeFrom( xmlParserCtxt* inout_pContext ) noexcept {
    m_pDocument = std::exchange( inout_pContext->myDoc, nullptr );
}

/// A zeroed T, with room for more behind it.
template <class T>
T* DocumentTree::add( Blocks& inout_blocks, std::size_t in_uBytes ) {
    static_assert( std::is_trivial_v<T> && alignof( T ) <= ALIGNMENT );
    const std::size_t uBytes = ( in_uBytes + ALIGNMENT - 1 ) / ALIGNMENT * ALIGNMENT;
    if ( inout_blocks.empty() || !inout_blocks.back()->hasRoomFor( uBytes ) )
        inout_blocks.push_back( std::make_unique<Block>( std::max( uBytes, BLOCK_BYTES ) ) );
    return new ( inout_blocks.back()->handOut( uBytes ) ) T{};
}

xmlNode* DocumentTree::addText( Blocks& inout_blocks, std::string_view in_strText ) {
    auto* const pText = add<xmlNode>( inout_blocks, sizeof( xmlNode ) + in_strText.size() + 1 );
    pText->type = XML_TEXT_NODE;
    pText->name = xmlStringText;
    pText->content = reinterpret_cast<xmlChar*>( pText + 1 );
    *std::copy( in_strText.begin(), in_strText.end(), pText->content ) = 0;
    return pText;
}

xmlAttr* DocumentTree::addAttribute( xmlNode* in_pElement, const xmlChar* const* in_aszFields ) {
    auto* const pAttribute = add<xmlAttr>( m_attributes );
    pAttribute->_private = m_attributes.back().get();
    pAttribute->type = XML_ATTRIBUTE_NODE;
    pAttribute->name = in_aszFields[NAME];
    pAttribute->parent = in_pElement;
    pAttribute->doc = in_pElement->doc;
    if ( in_aszFields[URI] )
        pAttribute->ns = getNamespace( in_pElement, in_aszFields[PREFIX] );
    setValue( *pAttribute, { fromXml( in_aszFields[VALUE] ),
                             static_cast<std::size_t>( in_aszFields[VALUE_END] - in_aszFields[VALUE] ) } );
    return pAttribute;
}

void DocumentTree::setValue( xmlAttr& inout_attribute, std::string_view in_strValue ) {
    if ( in_strValue.find( '&' ) != std::string_view::npos ) {
        setReferringValue( inout_attribute, in_strValue );
        return;
    }
    xmlNode* pText = nullptr;
    if ( in_strValue.size() <= sizeof( SharedText::ullText ) ) {
        pText = getSharedText( in_strValue );
    } else {
        pText = addText( m_attributes, in_strValue );
        pText->_private = m_attributes.back().get();
        pText->parent = reinterpret_cast<xmlNode*>( &inout_attribute );
    }
    pText->doc = inout_attribute.doc;
    inout_attribute.children = inout_attribute.last = pText;
}

/// Sets a value with references to characters or entities, of which libxml2 makes nodes by itself.
void DocumentTree::setReferringValue( xmlAttr& inout_attribute, std::string_view in_strValue ) {
    xmlNode*& pValue = m_vecReferring.emplace_back( nullptr );
    pValue = xmlStringLenGetNodeList( inout_attribute.doc, toXml( in_strValue.data() ),
                                      static_cast<int>( in_strValue.size() ) );
    if ( !pValue )
        throw std::bad_alloc();
    inout_attribute.children = pValue;
    for ( xmlNode* pNode = pValue; pNode; pNode = pNode->next ) {
        pNode->parent = reinterpret_cast<xmlNode*>( &inout_attribute );
        inout_attribute.last = pNode;
    }
}

/// A text of up to eight characters, none of them NUL: most are numbers and keywords, of which a file repeats few.
xmlNode* DocumentTree::getSharedText( std::string_view in_strText ) {
    std::uint64_t ullText = 0;
    std::copy( in_strText.begin(), in_strText.end(), reinterpret_cast<char*>( &ullText ) );
    SharedText& shared = m_aSharedTexts[ullText * 0x9E3779B97F4A7C15U >> 55]; // Fibonacci hashing to nine bits
    if ( !shared.pText || shared.ullText != ullText )
        shared = { ullText, addText( m_elements, in_strText ) };
    return shared.pText;
}

void DocumentTree::removeAttributes( xmlNode* inout_pElement ) noexcept {
    removeAttributesOf( inout_pElement );
    for ( xmlNode* const pChild : ChildElements( inout_pElement ) )
        removeAttributesOf( pChild );
}

void DocumentTree::removeAttributesOf( xmlNode* inout_pElement ) noexcept {
    for ( xmlAttr* pAttribute = std::exchange( inout_pElement->properties, nullptr ); pAttribute; ) {
        if ( pAttribute->atype == XML_ATTRIBUTE_ID ) // if the schema calls it one
            xmlRemoveID( pAttribute->doc, pAttribute );
        const xmlNode* const pValue = pAttribute->children;
        const bool bOwnValue = pValue->parent && pValue->content == reinterpret_cast<const xmlChar*>( pValue + 1 );
        auto* const pBlockOfValue = static_cast<Block*>( bOwnValue ? pValue->_private : nullptr );
        auto* const pBlock = static_cast<Block*>( pAttribute->_private );
        pAttribute = pAttribute->next;
        if ( pBlockOfValue )
            pBlockOfValue->takeBack();
        pBlock->takeBack();
    }
}

} // namespace Velquin::Pstn

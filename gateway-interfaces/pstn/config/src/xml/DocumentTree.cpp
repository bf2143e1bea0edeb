#include "xml/DocumentTree.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

#include <libxml/parserInternals.h>

#include "xml/ChildElements.h"
#include "xml/ElementPosition.h"
#include "xml/LibXml2.h"

namespace Velquin::Pstn {

namespace {

constexpr std::size_t BLOCK_BYTES = 32768;
constexpr std::size_t ALIGNMENT = alignof( xmlNode );

/// What libxml2 hands over of each attribute.
enum AttributeField { NAME, PREFIX, URI, VALUE, VALUE_END, ATTRIBUTE_FIELDS };

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

/// Memory that is handed out from its beginning to its end and freed as a whole.
class DocumentTree::Block {
public:
    explicit Block( std::size_t in_uBytes )
        : m_pMemory( std::make_unique_for_overwrite<std::byte[]>( in_uBytes ) ), m_uFree( in_uBytes ),
          m_pFree( m_pMemory.get() ) {}

    bool hasRoomFor( std::size_t in_uBytes ) const noexcept { return in_uBytes <= m_uFree; }
    void* handOut( std::size_t in_uBytes ) noexcept {
        m_uFree -= in_uBytes;
        ++m_uInUse;
        return std::exchange( m_pFree, m_pFree + in_uBytes );
    }
    void takeBack() noexcept {
        if ( --m_uInUse == 0 )
            m_pMemory.reset();
    }

private:
    std::unique_ptr<std::byte[]> m_pMemory;
    std::size_t m_uFree;
    std::byte* m_pFree;
    std::size_t m_uInUse = 0;
};

/// An attribute, its text node and, behind them, the text.
struct DocumentTree::Attribute {
    xmlAttr attribute;
    xmlNode text;
};

/// A zeroed T with room for more behind it.
template <class T>
T* DocumentTree::add( Blocks& inout_blocks, std::size_t in_uBytes ) {
    static_assert( std::is_trivial_v<T> && alignof( T ) <= ALIGNMENT );
    const std::size_t uBytes = ( in_uBytes + ALIGNMENT - 1 ) / ALIGNMENT * ALIGNMENT;
    if ( inout_blocks.empty() || !inout_blocks.back()->hasRoomFor( uBytes ) )
        inout_blocks.push_back( std::make_unique<Block>( std::max( uBytes, BLOCK_BYTES ) ) );
    return new ( inout_blocks.back()->handOut( uBytes ) ) T{};
}

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

    inout_pContext->nodemem = -1; // a text that follows isn't one that was begun
    if ( nodePush( inout_pContext, pElement ) < 0 )
        return; // and libxml2 has ended the parse
    xmlAddChild( pParent, pElement );

    xmlNs** ppNamespace = &pElement->nsDef;
    for ( int i = 0; i < in_nNamespaces; ++i, ppNamespace = &( *ppNamespace )->next ) {
        *ppNamespace = xmlNewNs( nullptr, in_aszNamespaces[2 * i + 1], in_aszNamespaces[2 * i] );
        if ( !*ppNamespace )
            throw std::bad_alloc();
    }
    if ( in_szUri )
        pElement->ns = xmlSearchNs( pDocument, pElement, in_szPrefix );

    xmlAttr* pLast = nullptr;
    for ( int i = 0; i < in_nAttributes; ++i, in_aszAttributes += ATTRIBUTE_FIELDS ) {
        xmlAttr* const pAttribute = addAttribute( pElement, in_aszAttributes );
        pAttribute->prev = pLast;
        ( pLast ? pLast->next : pElement->properties ) = pAttribute;
        pLast = pAttribute;
    }
}

xmlAttr* DocumentTree::addAttribute( xmlNode* in_pElement, const xmlChar* const* in_aszFields ) {
    const xmlChar* const szValue = in_aszFields[VALUE];
    const auto uLength = static_cast<std::size_t>( in_aszFields[VALUE_END] - szValue );
    auto* const pBoth = add<Attribute>( m_attributes, sizeof( Attribute ) + uLength + 1 );
    xmlAttr& attribute = pBoth->attribute;
    attribute._private = m_attributes.back().get();
    attribute.type = XML_ATTRIBUTE_NODE;
    attribute.name = in_aszFields[NAME];
    attribute.parent = in_pElement;
    attribute.doc = in_pElement->doc;
    if ( in_aszFields[URI] )
        attribute.ns = xmlSearchNs( attribute.doc, in_pElement, in_aszFields[PREFIX] );
    if ( std::memchr( szValue, '&', uLength ) ) {
        xmlNode*& pValue = m_vecReferring.emplace_back( nullptr );
        pValue = attribute.children = xmlStringLenGetNodeList( attribute.doc, szValue, static_cast<int>( uLength ) );
        if ( !pValue )
            throw std::bad_alloc();
        for ( xmlNode* pNode = attribute.children; pNode; pNode = pNode->next ) {
            pNode->parent = reinterpret_cast<xmlNode*>( &attribute );
            attribute.last = pNode;
        }
        return &attribute;
    }
    xmlNode& text = pBoth->text;
    text.type = XML_TEXT_NODE;
    text.name = xmlStringText;
    text.doc = attribute.doc;
    text.parent = reinterpret_cast<xmlNode*>( &attribute );
    text.content = reinterpret_cast<xmlChar*>( pBoth + 1 );
    std::memcpy( text.content, szValue, uLength );
    text.content[uLength] = 0;
    attribute.children = attribute.last = &text;
    return &attribute;
}

void DocumentTree::takeFrom( xmlParserCtxt* inout_pContext ) noexcept {
    m_pDocument = std::exchange( inout_pContext->myDoc, nullptr );
}

void DocumentTree::removeAttributes( xmlNode* inout_pElement ) noexcept {
    removeAttributesOf( inout_pElement );
    for ( xmlNode* const pChild : ChildElements( inout_pElement ) )
        removeAttributesOf( pChild );
}

void DocumentTree::removeAttributesOf( xmlNode* inout_pElement ) noexcept {
    for ( xmlAttr* pAttribute = std::exchange( inout_pElement->properties, nullptr ); pAttribute; ) {
        auto* const pBlock = static_cast<Block*>( pAttribute->_private );
        pAttribute = pAttribute->next;
        pBlock->takeBack();
    }
}

} // namespace Velquin::Pstn

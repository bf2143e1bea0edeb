#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <libxml/parser.h>
#include <libxml/tree.h>

namespace Velquin::Pstn {

/// A document as libxml2 keeps it, with its elements and attributes in a few large blocks in the order of the file,
/// where libxml2 would allocate three pieces for each attribute: building, walking and releasing it costs less, and
/// attributes that were read can be given back.
class DocumentTree {
public:
    DocumentTree();
    DocumentTree( const DocumentTree& ) = delete;
    DocumentTree& operator=( const DocumentTree& ) = delete;
    ~DocumentTree();

    /// Adds an element to what the context parses, in place of xmlSAX2StartElementNs: the same arguments, the same tree
    /// but for identifiers and values by default, which aren't looked for. The element knows its line (see
    /// ElementPosition.h).
    /// @throws std::bad_alloc; the context's parse must end then
    void startElement( xmlParserCtxt* inout_pContext, const xmlChar* in_szName, const xmlChar* in_szPrefix,
                       const xmlChar* in_szUri, int in_nNamespaces, const xmlChar** in_aszNamespaces,
                       int in_nAttributes, const xmlChar** in_aszAttributes );

    /// Takes what the context has built over; to be called when it has ended, whether well or not.
    void takeFrom( xmlParserCtxt* inout_pContext ) noexcept;

    /// Null when nothing was taken over.
    xmlDoc* getDocument() const noexcept { return m_pDocument; }

    /// Removes the attributes of an element of this tree and of its children. The memory is free as soon as its
    /// neighbours' is.
    void removeAttributes( xmlNode* inout_pElement ) noexcept;

private:
    class Block;
    struct Attribute;
    using Blocks = std::vector<std::unique_ptr<Block>>;

    template <class T>
    static T* add( Blocks& inout_blocks, std::size_t in_uBytes = sizeof( T ) );

    xmlAttr* addAttribute( xmlNode* in_pElement, const xmlChar* const* in_aszFields );
    void removeAttributesOf( xmlNode* inout_pElement ) noexcept;

    xmlDoc* m_pDocument = nullptr;
    Blocks m_elements;
    Blocks m_attributes;
    std::vector<xmlNode*> m_vecReferring; ///< values of attributes that libxml2 allocated
};

using DocumentTreePtr = std::unique_ptr<DocumentTree>;

} // namespace Velquin::Pstn

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include <libxml/parser.h>
#include <libxml/tree.h>

namespace Velquin::Pstn {

/// A document as libxml2 keeps it, but with its elements, attributes and their values in a few large blocks in the
/// order of the file, where libxml2 would allocate each by itself, and with short values shared: it takes less memory,
/// costs less to build, to walk and to release, and attributes that were read can be given back.
class DocumentTree {
public:
    DocumentTree();
    DocumentTree( const DocumentTree& ) = delete;
    DocumentTree& operator=( const DocumentTree& ) = delete;
    ~DocumentTree();

    /// Adds an element to what the context parses, in place of xmlSAX2StartElementNs: the same arguments but for
    /// defaults, the same tree, except that identifiers aren't gathered and that a shared value has no parent. The
    /// element knows its line (see ElementPosition.h).
    /// @throws std::bad_alloc; the context's parse must end then
    void startElement( xmlParserCtxt* inout_pContext, const xmlChar* in_szName, const xmlChar* in_szPrefix,
                       const xmlChar* in_szUri, int in_nNamespaces, const xmlChar** in_aszNamespaces,
                       int in_nAttributes, const xmlChar** in_aszAttributes );

    /// Takes over what the context has built; to be called when its parse has ended, whether well or not.
    void takeFrom( xmlParserCtxt* inout_pContext ) noexcept;

    /// Null when nothing was taken over. libxml2 may read, copy and validate the document, and the caller may set what
    /// its nodes leave to programs; but elements and attributes stay as they are, since libxml2 can't free them.
    xmlDoc* getDocument() const noexcept { return m_pDocument; }

    /// Removes the attributes of an element of this tree and of its children. Their memory is free when that of their
    /// neighbours is. Nothing is added to the tree any more then.
    void removeAttributes( xmlNode* inout_pElement ) noexcept;

private:
    class Block;
    using Blocks = std::vector<std::unique_ptr<Block>>;

    /// A value of few characters, and these as a number.
    struct SharedText {
        std::uint64_t ullText = 0;
        xmlNode* pText = nullptr;
    };

    template <class T>
    static T* add( Blocks& inout_blocks, std::size_t in_uBytes = sizeof( T ) );
    static xmlNode* addText( Blocks& inout_blocks, std::string_view in_strText );

    xmlAttr* addAttribute( xmlNode* in_pElement, const xmlChar* const* in_aszFields );
    void setValue( xmlAttr& inout_attribute, std::string_view in_strValue );
    void setReferringValue( xmlAttr& inout_attribute, std::string_view in_strValue );
    xmlNode* getSharedText( std::string_view in_strText );
    static void removeAttributesOf( xmlNode* inout_pElement ) noexcept;

    xmlDoc* m_pDocument = nullptr;
    Blocks m_elements; ///< and shared values
    Blocks m_attributes;
    std::vector<xmlNode*> m_vecReferring; ///< values of attributes that libxml2 allocated
    std::array<SharedText, 512> m_aSharedTexts{};
};

using DocumentTreePtr = std::unique_ptr<DocumentTree>;

} // namespace Velquin::Pstn

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string>
#include <string_view>

#include <libxml/parser.h>
#include <libxml/tree.h>

namespace Velquin::Pstn {

/// What the parser hands over of a start tag: the arguments of libxml2's startElementNsSAX2Func.
struct StartTag {
    const xmlChar* szName;
    const xmlChar* szPrefix;
    const xmlChar* szUri;
    int nNamespaces;
    const xmlChar** aszNamespaces; ///< prefix and URI of each
    int nAttributes;               ///< without those that a document type declaration adds
    const xmlChar** aszAttributes; ///< name, prefix, URI, begin and end of the value of each
};

/// The nodes of one document: libxml2's own structures, but in a few large blocks in the order of the file, where
/// libxml2 would allocate each by itself, and with short values shared. A load takes 13 to 17 % fewer instructions than
/// with libxml2's own nodes, and a third less memory at its peak.
///
/// The tree is that which libxml2 makes, except that it has no comments, no processing instructions, and no mark of
/// CDATA sections; that it gathers no identifiers; and that a shared value has no parent. libxml2 may read, copy and
/// validate it, but free or change none of its nodes.
class DocumentBlocks {
public:
    DocumentBlocks() = default;
    DocumentBlocks( const DocumentBlocks& ) = delete;
    DocumentBlocks& operator=( const DocumentBlocks& ) = delete;

    // The events of a parse, in the order of the file. All may throw std::bad_alloc; the parse must end then.

    /// @param in_ullLine the line on which the tag ends, from 1
    void startElement( xmlDoc* in_pDocument, const StartTag& in_tag, unsigned long long in_ullLine );
    void addText( std::string_view in_strText );
    void endElement();

    /// The document's element; null while there is none. It stands in no document until the caller makes it a root.
    xmlNode* getRoot() const noexcept { return m_pRoot; }

private:
    /// A value of few characters, and these as a number.
    struct SharedText {
        std::uint64_t ullText = 0;
        xmlNode* pText = nullptr;
    };

    template <class T>
    T* add( std::size_t in_uBytes = sizeof( T ) );
    xmlNode* addTextNode( xmlDoc* in_pDocument, std::string_view in_strText );
    void addNamespaces( const StartTag& in_tag );
    void addAttributes( const StartTag& in_tag );
    void setValue( xmlAttr& inout_attribute, std::string_view in_strValue );
    xmlNode* getSharedText( xmlDoc* in_pDocument, std::string_view in_strText );
    void appendToOpenElement( xmlNode* in_pNode ) noexcept;
    void endText( bool in_bElementEnds );

    std::pmr::monotonic_buffer_resource m_memory{ 32768 };
    xmlNode* m_pRoot = nullptr;
    xmlNode* m_pOpen = nullptr; ///< the innermost element whose end has not come
    std::string m_strText;      ///< since the last tag
    std::array<SharedText, 512> m_aSharedTexts{};
};

} // namespace Velquin::Pstn

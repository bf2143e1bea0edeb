#pragma once

#include <memory>

#include <libxml/tree.h>

#include "document/DocumentBlocks.h"
#include "document/LibXml2.h"

namespace Velquin::Pstn {

/// A parsed document. Owns the blocks in which its nodes stand.
class XmlDocument {
public:
    /// @param in_pBlocks the nodes of the document; null when libxml2 made the nodes
    XmlDocument( XmlDocPtr in_pDocument, std::unique_ptr<DocumentBlocks> in_pBlocks );
    XmlDocument( const XmlDocument& ) = delete;
    XmlDocument& operator=( const XmlDocument& ) = delete;
    ~XmlDocument();

    /// The document. Don't change it: libxml2 could free a node that isn't its own.
    xmlDoc* get() const noexcept { return m_pDocument.get(); }
    xmlNode* getRoot() const noexcept { return xmlDocGetRootElement( get() ); }

private:
    std::unique_ptr<DocumentBlocks> m_pBlocks; // outlives the document, which may refer to attributes in it
    XmlDocPtr m_pDocument;
};

using XmlDocumentPtr = std::unique_ptr<XmlDocument>;

} // namespace Velquin::Pstn

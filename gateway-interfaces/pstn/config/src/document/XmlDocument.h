#pragma once

#include <memory>

#include <libxml/tree.h>

#include "document/DocumentBlocks.h"
#include "document/LibXml2.h"

namespace Velquin::Pstn {

/// A document that was parsed, with what its nodes stand in.
class XmlDocument {
public:
    /// @param in_pDocument the document
    /// @param in_pBlocks what holds its nodes; null when libxml2 made them
    XmlDocument( XmlDocPtr in_pDocument, std::unique_ptr<DocumentBlocks> in_pBlocks );
    XmlDocument( const XmlDocument& ) = delete;
    XmlDocument& operator=( const XmlDocument& ) = delete;
    ~XmlDocument();

    /// Not to be changed: libxml2 could free a node that isn't its own.
    xmlDoc* get() const noexcept { return m_pDocument.get(); }
    xmlNode* getRoot() const noexcept { return xmlDocGetRootElement( get() ); }

private:
    std::unique_ptr<DocumentBlocks> m_pBlocks; // outlives the document, which may refer to its attributes
    XmlDocPtr m_pDocument;
};

using XmlDocumentPtr = std::unique_ptr<XmlDocument>;

} // namespace Velquin::Pstn

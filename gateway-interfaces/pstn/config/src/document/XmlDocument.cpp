#include "document/XmlDocument.h"

#include <utility>

namespace Velquin::Pstn {

XmlDocument::XmlDocument( XmlDocPtr in_pDocument, std::unique_ptr<DocumentBlocks> in_pBlocks )
    : m_pBlocks( std::move( in_pBlocks ) ), m_pDocument( std::move( in_pDocument ) ) {
    if ( m_pBlocks && m_pBlocks->getRoot() )
        xmlDocSetRootElement( get(), m_pBlocks->getRoot() );
}

XmlDocument::~XmlDocument() {
    if ( m_pBlocks && getRoot() )
        xmlUnlinkNode( getRoot() ); // else libxml2 would free the nodes
}

} // namespace Velquin::Pstn

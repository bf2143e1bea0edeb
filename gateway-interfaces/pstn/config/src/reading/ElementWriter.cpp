#include "reading/ElementWriter.h"

#include <velquin/Finding.h>

#include "document/LibXml2.h"

namespace Velquin::Pstn {

xmlNode* addChildElement( xmlNode* in_pParent, const char* in_szName ) {
    if ( !in_pParent )
        return nullptr;
    XmlNodePtr pElement( xmlNewNode( nullptr, toXml( in_szName ) ) );
    if ( !pElement || !xmlAddChild( in_pParent, pElement.get() ) )
        return nullptr;
    return pElement.release();
}

bool ElementWriter::addText( const char* in_szAttribute, const char* in_szValue ) const {
    if ( m_pElement && xmlNewProp( m_pElement, toXml( in_szAttribute ), toXml( in_szValue ) ) )
        return true;
    VELQUIN_REPORT_ERROR( m_logger, "Failed to add " << in_szAttribute << " to board XML element." );
    return false;
}

} // namespace Velquin::Pstn

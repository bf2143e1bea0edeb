#include "reading/ElementWriter.h"

#include <velquin/Finding.h>

#include "document/LibXml2.h"

namespace Velquin::Pstn {

xmlNode* setRootElement( _xmlDoc* in_pDocument, const char* in_szName ) {
    xmlNode* const pRoot = in_pDocument ? xmlNewDocNode( in_pDocument, nullptr, toXml( in_szName ), nullptr ) : nullptr;
    if ( pRoot )
        XmlNodePtr( xmlDocSetRootElement( in_pDocument, pRoot ) ).reset(); // frees the old root
    return pRoot;
}

xmlNode* addChildElement( xmlNode* in_pParent, const char* in_szName ) {
    if ( !in_pParent )
        return nullptr;
    XmlNodePtr pElement( xmlNewNode( nullptr, toXml( in_szName ) ) );
    if ( !pElement || !xmlAddChild( in_pParent, pElement.get() ) )
        return nullptr;
    return pElement.release();
}

bool addAttribute( xmlNode* in_pElement, const char* in_szAttribute, const char* in_szValue ) {
    return in_pElement && xmlNewProp( in_pElement, toXml( in_szAttribute ), toXml( in_szValue ) );
}

bool ElementWriter::addText( const char* in_szAttribute, const char* in_szValue ) const {
    if ( addAttribute( m_pElement, in_szAttribute, in_szValue ) )
        return true;
    VELQUIN_REPORT_ERROR( m_logger, "Failed to add " << in_szAttribute << " to board XML element." );
    return false;
}

} // namespace Velquin::Pstn

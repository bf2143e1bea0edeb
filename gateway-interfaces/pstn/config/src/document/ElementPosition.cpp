#include "document/ElementPosition.h"

#include <algorithm>
#include <cstdint>

#include "document/LibXml2.h"

namespace Velquin::Pstn {

namespace {

/// Marks the documents of this library: in others, what nodes leave to programs belongs to the program whose they are.
char s_cOwnDocument;

bool isInOwnDocument( const xmlNode* in_pElement ) noexcept {
    return in_pElement->doc && in_pElement->doc->_private == &s_cOwnDocument;
}

} // namespace

void setElementLine( xmlNode* in_pElement, unsigned long long in_ullLine ) noexcept {
    in_pElement->doc->_private = &s_cOwnDocument;
    in_pElement->_private = reinterpret_cast<void*>( static_cast<std::uintptr_t>( in_ullLine ) );
    // For copies of the document, which libxml2's compiler of schemas works on.
    in_pElement->line = static_cast<unsigned short>( std::min( in_ullLine, 65535ULL ) );
}

unsigned long long getElementLine( const xmlNode* in_pElement ) noexcept {
    if ( isInOwnDocument( in_pElement ) )
        return reinterpret_cast<std::uintptr_t>( in_pElement->_private );
    const long nLine = xmlGetLineNo( const_cast<xmlNode*>( in_pElement ) );
    return nLine > 0 ? static_cast<unsigned long long>( nLine ) : 0;
}

void setElementId( xmlNode* in_pElement, unsigned int in_uId ) noexcept {
    if ( isInOwnDocument( in_pElement ) )
        in_pElement->psvi = reinterpret_cast<void*>( static_cast<std::uintptr_t>( in_uId ) ); // validation is over
}

unsigned int getElementId( const xmlNode* in_pElement ) noexcept {
    return static_cast<unsigned int>( reinterpret_cast<std::uintptr_t>( in_pElement->psvi ) );
}

std::string getElementPath( const xmlNode* in_pElement ) {
    return fromXml( XmlStringPtr( xmlGetNodePath( const_cast<xmlNode*>( in_pElement ) ) ).get() );
}

const char* getElementFile( const xmlNode* in_pElement ) noexcept {
    return in_pElement->doc ? fromXml( in_pElement->doc->URL ) : "";
}

} // namespace Velquin::Pstn

#include <velquin/XML.h>

#include <mutex>

#include <libxml/parser.h>
#include <libxml/relaxng.h>
#include <libxml/tree.h>
#include <libxml/xmlschemastypes.h>

#include <velquin/Assertion.h>

namespace Velquin::XML {

namespace {

std::mutex s_mutex;
unsigned int s_uOpenCount = 0;

_xmlNode* findElement( _xmlNode* in_pNode, const char* in_szName ) noexcept {
    for ( _xmlNode* pNode = in_pNode; pNode; pNode = pNode->next ) {
        if ( pNode->type == XML_ELEMENT_NODE &&
             ( !in_szName || xmlStrEqual( pNode->name, reinterpret_cast<const xmlChar*>( in_szName ) ) ) )
            return pNode;
    }
    return nullptr;
}

} // namespace

void initializeLibrary() {
    const std::lock_guard lock( s_mutex );
    // A second call costs only a compare. It initialises again if the program cleaned libxml2 up in between.
    xmlInitParser();
    // Otherwise libxml2 would fill these tables at the first schema, on any thread and without a lock.
    xmlSchemaInitTypes();
    xmlRelaxNGInitTypes();
    ++s_uOpenCount;
}

void closeLibrary() {
    bool bWasOpen;
    {
        const std::lock_guard lock( s_mutex );
        bWasOpen = s_uOpenCount > 0;
        s_uOpenCount -= bWasOpen;
    }
    static_cast<void>( VELQUIN_ASSERT( bWasOpen ) );
}

unsigned int getOpenCount() {
    const std::lock_guard lock( s_mutex );
    return s_uOpenCount;
}

_xmlNode* findFirstElement( const _xmlNode* in_pNode, const char* in_szName ) {
    return in_pNode ? findElement( in_pNode->children, in_szName ) : nullptr;
}

_xmlNode* findNextElement( const _xmlNode* in_pNode, const char* in_szName ) {
    return in_pNode ? findElement( in_pNode->next, in_szName ) : nullptr;
}

} // namespace Velquin::XML

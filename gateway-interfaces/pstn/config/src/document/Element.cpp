#include "document/Element.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include <libxml/dict.h>

#include "document/ElementPaths.h"

namespace Velquin::Pstn {

namespace {

/// Marks the documents of this library. In other documents `_private` belongs to the program that made them.
char s_cOwnDocument;

bool isOfOwnDocument( const xmlNode* in_pNode ) noexcept {
    return in_pNode->doc && in_pNode->doc->_private == &s_cOwnDocument;
}

} // namespace

const char* getElementName( const xmlNode* in_pElement ) noexcept {
    return fromXml( in_pElement->name );
}

void setElementName( xmlNode* in_pElement, const std::string& in_strName ) {
    xmlDict* const pDict = in_pElement->doc->dict;
    const xmlChar* const szName = pDict ? xmlDictLookup( pDict, toXml( in_strName.c_str() ), -1 ) : nullptr;
    if ( !szName )
        return;
    if ( ElementPaths* const pPaths = ElementPaths::getCurrent() )
        pPaths->keepName( in_pElement );
    in_pElement->name = szName;
}

void setElementPosition( xmlNode* in_pElement, ElementPosition in_position ) noexcept {
    in_pElement->doc->_private = &s_cOwnDocument;
    in_pElement->_private = std::bit_cast<void*>( in_position );
    // libxml2's schema compiler works on a copy of the document, which has only this line.
    in_pElement->line = static_cast<unsigned short>( std::min( in_position.uLine, 65535U ) );
}

unsigned long long getElementLine( const xmlNode* in_pElement ) noexcept {
    if ( isOfOwnDocument( in_pElement ) )
        return std::bit_cast<ElementPosition>( in_pElement->_private ).uLine;
    const long nLine = xmlGetLineNo( const_cast<xmlNode*>( in_pElement ) );
    return nLine > 0 ? static_cast<unsigned long long>( nLine ) : 0;
}

unsigned long long getElementNumber( const xmlNode* in_pElement ) noexcept {
    return isOfOwnDocument( in_pElement ) ? std::bit_cast<ElementPosition>( in_pElement->_private ).uNumber : 0;
}

std::string getElementPath( const xmlNode* in_pElement ) {
    if ( ElementPaths* const pPaths = ElementPaths::getCurrent(); pPaths && isOfOwnDocument( in_pElement ) ) {
        if ( std::string strPath = pPaths->find( in_pElement ); !strPath.empty() )
            return strPath;
    }
    return fromXml( XmlStringPtr( xmlGetNodePath( const_cast<xmlNode*>( in_pElement ) ) ).get() );
}

const xmlNode* getParentElement( const xmlNode* in_pElement ) noexcept {
    const xmlNode* const pParent = in_pElement->parent;
    return pParent && pParent->type == XML_ELEMENT_NODE ? pParent : nullptr;
}

const char* getElementEncoding( const xmlNode* in_pElement ) noexcept {
    return reinterpret_cast<const char*>( in_pElement->doc->encoding );
}

bool hasNamespace( const xmlNode* in_pElement ) noexcept {
    return in_pElement->ns != nullptr;
}

bool isOfNamespace( const xmlNode* in_pElement, std::string_view in_strUri ) noexcept {
    return in_pElement->ns && in_strUri == fromXml( in_pElement->ns->href );
}

const char* getElementFile( const xmlNode* in_pElement ) noexcept {
    return in_pElement->doc ? fromXml( in_pElement->doc->URL ) : "";
}

bool findAttribute( const xmlNode* in_pElement, const char* in_szName, AttributeText& out_text ) {
    for ( const xmlAttr* pAttribute = in_pElement->properties; pAttribute; pAttribute = pAttribute->next ) {
        const char* const szName = fromXml( pAttribute->name );
        // Most names differ in their first letter, and a load asks for many.
        if ( *szName != *in_szName || pAttribute->ns || std::strcmp( szName, in_szName ) != 0 )
            continue;
        const xmlNode* const pText = pAttribute->children;
        out_text.m_pCopy.reset();
        if ( !pText ) {
            out_text.m_szText = "";
        } else if ( !pText->next && pText->type == XML_TEXT_NODE ) {
            out_text.m_szText = fromXml( pText->content );
        } else {
            out_text.m_pCopy.reset( xmlNodeListGetString( in_pElement->doc, pText, 1 ) );
            out_text.m_szText = fromXml( out_text.m_pCopy.get() );
        }
        return true;
    }
    return false;
}

} // namespace Velquin::Pstn

#include "document/LibXml2Errors.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <utility>

#include <libxml/relaxng.h>

#include "RuleNames.h"
#include "document/Element.h"
#include "document/LibXml2.h"
#include "document/SyntaxFaults.h"

namespace Velquin::Pstn {

namespace {

constexpr unsigned int MAX_ERRORS = 100;

/// The message on one line: libxml2's messages end with a line break, and some take several lines.
std::string toOneLine( const char* in_szMessage ) {
    std::string strLine = in_szMessage ? in_szMessage : "unknown error of libxml2";
    while ( !strLine.empty() && ( strLine.back() == '\n' || strLine.back() == ' ' ) )
        strLine.pop_back();
    for ( char& c : strLine ) {
        if ( c == '\n' )
            c = ' ';
    }
    return strLine;
}

// libxml2 prints here, in pieces, whatever it has no structured error for.
void onGenericError( void* in_pRoute, const char* in_szFormat, ... ) {
    char szText[1024];
    std::va_list args;
    va_start( args, in_szFormat );
    std::vsnprintf( szText, sizeof( szText ), in_szFormat, args );
    va_end( args );
    xmlError error{};
    error.message = szText;
    LibXml2ErrorRoute::onStructuredError( in_pRoute, &error );
}

bool isAboutAttributes( const xmlError& in_error ) {
    return in_error.domain == XML_FROM_RELAXNGV &&
           ( in_error.code == XML_RELAXNG_ERR_ATTRVALID || in_error.code == XML_RELAXNG_ERR_INVALIDATTR );
}

bool isAboutContent( const xmlError& in_error ) {
    return in_error.domain == XML_FROM_RELAXNGV && in_error.code == XML_RELAXNG_ERR_CONTENTVALID;
}

/// Whether the error says that a child element is missing, without its name.
bool isAboutMissingChild( const xmlError& in_error ) {
    return in_error.domain == XML_FROM_RELAXNGV && in_error.code == XML_RELAXNG_ERR_NOELEM &&
           *fromXml( toXml( in_error.str1 ) ) == '\0';
}

/// Whether the error about an element's content that follows says more than this one. An interleave gives up at the
/// first child that it doesn't expect, and reports all children behind it as missing.
bool isInInterleave( const xmlError& in_error ) {
    return in_error.domain == XML_FROM_RELAXNGV &&
           ( in_error.code == XML_RELAXNG_ERR_INTERSEQ || in_error.code == XML_RELAXNG_ERR_INTEREXTRA ||
             ( in_error.code == XML_RELAXNG_ERR_NOELEM && !isAboutMissingChild( in_error ) ) );
}

/// The element's name in an error about attributes.
const char* getElementName( const xmlError& in_error ) {
    return in_error.code == XML_RELAXNG_ERR_INVALIDATTR ? in_error.str2 : in_error.str1;
}

/// The element that the error is about; null when it is about none. In an error about attributes, libxml2 names the
/// element but hands over its first child, if it has one.
xmlNode* getElement( const xmlError& in_error ) {
    auto* const pNode = static_cast<xmlNode*>( in_error.node );
    if ( !pNode || pNode->type != XML_ELEMENT_NODE )
        return nullptr;
    if ( isAboutAttributes( in_error ) && pNode->parent && pNode->parent->type == XML_ELEMENT_NODE ) {
        const char* const szName = getElementName( in_error );
        if ( szName && std::strcmp( fromXml( pNode->name ), szName ) != 0 &&
             std::strcmp( fromXml( pNode->parent->name ), szName ) == 0 )
            return pNode->parent;
    }
    return pNode;
}

/// The child at which an interleave gave up. In an error about an element's content, libxml2 names the element but
/// hands over that child, or the element if there is no such child. Null when the error isn't about that.
xmlNode* getUnexpectedChild( const xmlError& in_error ) {
    xmlNode* const pElement = isAboutContent( in_error ) ? getElement( in_error ) : nullptr;
    return pElement && in_error.str1 && std::strcmp( fromXml( pElement->name ), in_error.str1 ) != 0 ? pElement
                                                                                                     : nullptr;
}

/// The element that may lack a child, at the end of its children or in front of one that is not expected.
xmlNode* getParentOfMissing( const xmlError& in_error ) {
    xmlNode* const pElement = getElement( in_error );
    if ( getUnexpectedChild( in_error ) ||
         ( pElement && in_error.domain == XML_FROM_RELAXNGV && in_error.code == XML_RELAXNG_ERR_ELEMWRONG ) )
        return pElement->parent->type == XML_ELEMENT_NODE ? pElement->parent : nullptr;
    return isAboutMissingChild( in_error ) || isAboutContent( in_error ) ? pElement : nullptr;
}

bool isVisibleText( const xmlNode* in_pNode ) {
    return ( in_pNode->type == XML_TEXT_NODE || in_pNode->type == XML_CDATA_SECTION_NODE ) &&
           xmlIsBlankNode( in_pNode ) == 0;
}

/// libxml2's message. For an interleave, the words are those that libxml2 has for other content.
std::string getMessage( const xmlError& in_error ) {
    if ( isAboutMissingChild( in_error ) )
        return "Expecting an element, got nothing"; // libxml2 leaves the name out when it has none
    if ( const xmlNode* const pChild = getUnexpectedChild( in_error ) )
        return std::string( "Did not expect element " ) + fromXml( pChild->name ) + " there";
    const xmlNode* const pElement = isAboutContent( in_error ) ? getElement( in_error ) : nullptr;
    for ( const xmlNode* pChild = pElement ? pElement->children : nullptr; pChild; pChild = pChild->next ) {
        if ( isVisibleText( pChild ) )
            return std::string( "Did not expect text in element " ) + fromXml( pElement->name ) + " content";
    }
    return toOneLine( in_error.message );
}

bool contains( const std::vector<xmlNode*>& in_vecElements, const xmlNode* in_pElement ) {
    return std::find( in_vecElements.begin(), in_vecElements.end(), in_pElement ) != in_vecElements.end();
}

/// Appends an element that isn't there yet.
void appendElement( std::vector<xmlNode*>& inout_vecElements, xmlNode* in_pElement ) {
    if ( in_pElement && !contains( inout_vecElements, in_pElement ) )
        inout_vecElements.push_back( in_pElement );
}

/// The log line: message, file and line.
std::string getTextInFile( const Finding& in_finding ) {
    const std::string strLine = in_finding.ullLine == 0 ? "" : " at line " + std::to_string( in_finding.ullLine );
    return in_finding.strMessage + " in file " + in_finding.strFile + strLine + '.';
}

} // namespace

void reportInFile( const Logger& in_logger, Finding in_finding ) {
    in_finding.strText = getTextInFile( in_finding );
    reportFinding( in_logger, std::move( in_finding ), __FILE__, __LINE__ );
}

void reportLibXml2Error( const Logger& in_logger, int in_nLevel, const xmlError& in_error, const char* in_szFile,
                         unsigned int& inout_uErrors ) {
    if ( inout_uErrors > MAX_ERRORS )
        return;
    Finding finding;
    finding.strRule = in_error.domain == XML_FROM_RELAXNGV   ? Rules::AGAINST_SCHEMA
                      : in_error.domain == XML_FROM_RELAXNGP ? Rules::UNUSABLE_SCHEMA
                      : in_error.level == XML_ERR_NONE       ? Rules::INTERNAL
                                                             : Rules::ILL_FORMED;
    finding.strFile = in_error.file && in_error.file[0] != '\0' ? in_error.file : in_szFile;
    finding.ullLine = in_error.line > 0 ? static_cast<unsigned long long>( in_error.line ) : 0;
    if ( const xmlNode* const pNode = getElement( in_error ) ) {
        finding.ullLine = getElementLine( pNode );
        finding.ullElement = getElementNumber( pNode );
        finding.strElementPath = getElementPath( pNode );
        // The document has the file's name as the program gave it.
        if ( const char* const szFile = getElementFile( pNode ); *szFile != '\0' )
            finding.strFile = szFile;
    }
    if ( ( in_error.domain == XML_FROM_PARSER || in_error.domain == XML_FROM_NAMESPACE ) && in_error.int2 > 0 ) {
        const auto ullColumn = static_cast<unsigned long long>( in_error.int2 );
        finding.span = { finding.ullLine, ullColumn, ullColumn };
    }
    finding.nLevel = in_nLevel;
    finding.strMessage = ++inout_uErrors <= MAX_ERRORS      ? getMessage( in_error )
                         : in_nLevel == Logger::ERROR_LEVEL ? "Too many errors, this one and the rest are not listed"
                                                            : "Too many warnings, this one and the rest are not listed";
    finding.strText = getTextInFile( finding );
    if ( finding.strRule == Rules::ILL_FORMED )
        explainSyntaxFault( in_error, finding );
    reportFinding( in_logger, std::move( finding ), __FILE__, __LINE__ );
}

LibXml2ErrorRoute::LibXml2ErrorRoute( const Logger& in_logger, std::string in_strFile )
    : m_logger( in_logger ),
      m_strFile( std::move( in_strFile ) ),
      m_pOuterStructuredError( xmlStructuredError ),
      m_pOuterStructuredContext( xmlStructuredErrorContext ),
      m_pOuterGenericError( xmlGenericError ),
      m_pOuterGenericContext( xmlGenericErrorContext ) {
    xmlSetStructuredErrorFunc( this, &onStructuredError );
    xmlSetGenericErrorFunc( this, &onGenericError );
}

LibXml2ErrorRoute::~LibXml2ErrorRoute() {
    xmlSetStructuredErrorFunc( m_pOuterStructuredContext, m_pOuterStructuredError );
    xmlSetGenericErrorFunc( m_pOuterGenericContext, m_pOuterGenericError );
}

void LibXml2ErrorRoute::onStructuredError( void* in_pRoute, XmlErrorPtr in_pError ) {
    auto& route = *static_cast<LibXml2ErrorRoute*>( in_pRoute );
    route.m_bOutOfMemory = route.m_bOutOfMemory || in_pError->code == XML_ERR_NO_MEMORY;
    try {
        if ( isInInterleave( *in_pError ) )
            return;
        if ( in_pError->node || !isAboutAttributes( *in_pError ) )
            route.report( *in_pError );
        else if ( unsigned int& uTimes = route.m_mapUnplaced[fromXml( toXml( getElementName( *in_pError ) ) )];
                  uTimes <= MAX_ERRORS )
            ++uTimes;
    } catch ( ... ) {
        // An exception must not pass through libxml2's C code.
        reportCurrentException( route.m_logger, __func__, __FILE__, __LINE__ );
    }
}

void LibXml2ErrorRoute::reportWrongAttributes( std::string in_strName, xmlNode* in_pElement ) {
    if ( contains( m_vecWrongAttributes, in_pElement ) )
        return;
    std::string strMessage = "Element " + in_strName + " failed to validate attributes";
    xmlError error{};
    error.domain = XML_FROM_RELAXNGV;
    error.code = XML_RELAXNG_ERR_ATTRVALID;
    error.message = strMessage.data();
    error.str1 = in_strName.data();
    error.node = in_pElement;
    report( error );
}

/// Reports the error, and keeps the element for the SchemaAdvisor.
void LibXml2ErrorRoute::report( const xmlError& in_error ) {
    reportLibXml2Error( m_logger, Logger::ERROR_LEVEL, in_error, m_strFile.c_str(), m_uErrors );
    if ( m_uErrors > MAX_ERRORS )
        return;
    appendElement( m_vecWrongChildren, getParentOfMissing( in_error ) );
    if ( isAboutAttributes( in_error ) )
        appendElement( m_vecWrongAttributes, getElement( in_error ) );
    // An interleave doesn't expect an optional child with wrong attributes.
    appendElement( m_vecWrongAttributes, getUnexpectedChild( in_error ) );
}

} // namespace Velquin::Pstn

#include "document/XmlDocumentReader.h"

#include <fstream>
#include <new>
#include <string>
#include <utility>

#include <libxml/SAX2.h>
#include <velquin/InputFile.h>

#include "RuleNames.h"
#include "document/CodePages.h"
#include "document/DocumentBuilder.h"
#include "document/Element.h"
#include "document/LibXml2Compat.h"
#include "document/LibXml2Errors.h"

namespace Velquin::Pstn {

namespace {

constexpr int MAX_ATTRIBUTES = 1000; // of an element
constexpr int MAX_NAMESPACES = 100;  // in scope
constexpr int MAX_NAMES = 100000;    // different names in a file
constexpr std::streamsize MAX_DTD_BYTES = 16384;

/// The state that the callbacks of one parse share. The context's `_private` points to it.
struct ParseState {
    const Logger& logger;
    const char* szPath;
    DocumentBlocks* pBlocks; ///< null when libxml2 makes the nodes
    const xmlParserCtxt* pContext = nullptr;
    std::ifstream stream{};
    bool bInDtd = false;
    std::streamsize nDtdBytes = 0;
    std::vector<int> vecNamespaces{}; ///< number of namespaces that each open element declares
    int nNamespaces = 0;              ///< their sum
    std::uint32_t uElements = 0;      ///< start tags so far
    unsigned int uErrors = 0;
    unsigned int uWarnings = 0;
    bool bRefused = false; // the reason is reported
    bool bEnded = false;   // we ended the parse: libxml2's further errors are no faults of the file

    static ParseState& of( void* in_pContext ) {
        return *static_cast<ParseState*>( static_cast<xmlParserCtxt*>( in_pContext )->_private );
    }
};

std::uint32_t getLine( void* in_pContext ) {
    const int nLine = xmlSAX2GetLineNumber( in_pContext );
    return nLine > 0 ? static_cast<std::uint32_t>( nLine ) : 0;
}

void reportFile( const ParseState& in_state, std::string_view in_strRule, unsigned long long in_ullLine,
                 std::string in_strMessage ) {
    Finding finding;
    if ( in_strRule == Rules::UNREADABLE_FILE )
        finding.eKind = Finding::Kind::UNREADABLE_FILE;
    finding.strRule = in_strRule;
    finding.strFile = in_state.szPath;
    finding.ullLine = in_ullLine;
    finding.strMessage = std::move( in_strMessage );
    reportInFile( in_state.logger, std::move( finding ) );
}

/// Reports once why the file is refused. The caller ends the parse.
void refuse( ParseState& inout_state, const char* in_szRule, std::string in_strWhy ) {
    if ( !inout_state.bEnded )
        reportFile( inout_state, in_szRule, getLine( const_cast<xmlParserCtxt*>( inout_state.pContext ) ),
                    std::move( in_strWhy ) );
    inout_state.bRefused = inout_state.bEnded = true;
}

/// Runs a body below libxml2's C code, through which no exception passes.
template <class Body>
void guard( ParseState& inout_state, Body in_body ) noexcept {
    try {
        in_body( inout_state );
    } catch ( ... ) {
        inout_state.bRefused = inout_state.bEnded = true;
        reportCurrentException( inout_state.logger, "readXmlDocument", __FILE__, __LINE__ );
    }
}

/// Runs the body of a SAX callback, and ends the parse when the body says so.
template <class Body>
void runCallback( void* in_pContext, Body in_body ) noexcept {
    ParseState& state = ParseState::of( in_pContext );
    guard( state, in_body );
    if ( state.bEnded )
        xmlStopParser( static_cast<xmlParserCtxt*>( in_pContext ) );
}

void onError( void* in_pContext, XmlErrorPtr in_pError ) {
    // A file needs no valid document type: the schema decides. The blocks gather no identifiers to find fault with.
    const bool bOnlyInvalid = ( in_pError->domain == XML_FROM_VALID || in_pError->domain == XML_FROM_DTD ||
                                in_pError->code == XML_DTD_XMLID_VALUE ) &&
                              in_pError->level < XML_ERR_FATAL;
    if ( ParseState::of( in_pContext ).bEnded )
        return;
    if ( bOnlyInvalid ) {
        // Behind any error, later versions don't look for what follows the root element.
        xmlCtxtResetLastError( in_pContext );
        return;
    }
    runCallback( in_pContext, [in_pError]( ParseState& inout_state ) {
        // Later versions warn of an entity that isn't declared, and read a value without it.
        const bool bError = in_pError->level >= XML_ERR_ERROR || in_pError->code == XML_WAR_UNDECLARED_ENTITY;
        // When a prefix has no namespace, or memory ends, libxml2 hands out what it has and calls it well-formed.
        inout_state.bRefused = inout_state.bRefused || bError;
        // Warnings have a count of their own: however many there are, the error behind them is listed.
        reportLibXml2Error( inout_state.logger, bError ? Logger::ERROR_LEVEL : Logger::WARNING_LEVEL, *in_pError,
                            inout_state.szPath, bError ? inout_state.uErrors : inout_state.uWarnings );
    } );
}

/// What the file has too much of; null when there is nothing.
/// @param in_nAttributes number of attributes of the current start tag, as far as it is known
const char* findExcess( const ParseState& in_state, int in_nAttributes, int in_nNamespaces ) {
    if ( in_nAttributes > MAX_ATTRIBUTES )
        return "An element has more than 1000 attributes";
    if ( in_nNamespaces > MAX_NAMESPACES )
        return "More than 100 namespaces are declared";
    if ( xmlDictSize( in_state.pContext->dict ) > MAX_NAMES )
        return "The file has more than 100000 different names";
    if ( in_state.nDtdBytes > MAX_DTD_BYTES )
        return "The document type declaration is longer than 16384 bytes";
    return nullptr;
}

void onStartElement( void* in_pContext, const xmlChar* in_szName, const xmlChar* in_szPrefix, const xmlChar* in_szUri,
                     int in_nNamespaces, const xmlChar** in_aszNamespaces, int in_nAttributes, int in_nDefaulted,
                     const xmlChar** in_aszAttributes ) {
    runCallback( in_pContext, [&]( ParseState& inout_state ) {
        inout_state.vecNamespaces.push_back( in_nNamespaces );
        inout_state.nNamespaces += in_nNamespaces;
        const ElementPosition position{ getLine( in_pContext ), ++inout_state.uElements };
        if ( const char* const szExcess = findExcess( inout_state, in_nAttributes, inout_state.nNamespaces ) ) {
            refuse( inout_state, Rules::TOO_LARGE, szExcess );
            return;
        }
        auto* const pContext = static_cast<xmlParserCtxt*>( in_pContext );
        if ( inout_state.pBlocks ) {
            inout_state.pBlocks->startElement( pContext->myDoc,
                                               { in_szName, in_szPrefix, in_szUri, in_nNamespaces, in_aszNamespaces,
                                                 in_nAttributes - in_nDefaulted, in_aszAttributes },
                                               position );
        } else {
            xmlSAX2StartElementNs( pContext, in_szName, in_szPrefix, in_szUri, in_nNamespaces, in_aszNamespaces,
                                   in_nAttributes, in_nDefaulted, in_aszAttributes );
            if ( pContext->node )
                setElementPosition( pContext->node, position );
        }
    } );
}

void onEndElement( void* in_pContext, const xmlChar* in_szName, const xmlChar* in_szPrefix, const xmlChar* in_szUri ) {
    runCallback( in_pContext, [&]( ParseState& inout_state ) {
        inout_state.nNamespaces -= inout_state.vecNamespaces.back();
        inout_state.vecNamespaces.pop_back();
        if ( inout_state.pBlocks )
            inout_state.pBlocks->endElement();
        else
            xmlSAX2EndElementNs( in_pContext, in_szName, in_szPrefix, in_szUri );
    } );
}

void onText( void* in_pContext, const xmlChar* in_pText, int in_nLength ) {
    runCallback( in_pContext, [&]( ParseState& inout_state ) {
        inout_state.pBlocks->addText( { fromXml( in_pText ), static_cast<std::size_t>( in_nLength ) } );
    } );
}

void onEndDocument( void* in_pContext ) {
    runCallback( in_pContext, [&]( ParseState& inout_state ) {
        xmlSAX2EndDocument( in_pContext );
        // libxml2 takes a NUL character for the end of the file.
        if ( const xmlParserInput* const pRest = inout_state.pContext->input;
             pRest && pRest->cur < pRest->end && *pRest->cur == 0 )
            refuse( inout_state, Rules::ILL_FORMED, "NUL character" );
    } );
}

void onInternalSubset( void* in_pContext, const xmlChar* in_szName, const xmlChar* in_szPublicId,
                       const xmlChar* in_szSystemId ) {
    ParseState::of( in_pContext ).bInDtd = true;
    xmlSAX2InternalSubset( in_pContext, in_szName, in_szPublicId, in_szSystemId );
}

/// Called when the internal subset has ended. The external subset is not read.
void onExternalSubset( void* in_pContext, const xmlChar*, const xmlChar*, const xmlChar* ) {
    ParseState::of( in_pContext ).bInDtd = false;
}

void refuseEntity( void* in_pContext, const xmlChar* in_szName ) {
    runCallback( in_pContext, [in_szName]( ParseState& inout_state ) {
        refuse( inout_state, Rules::ILL_FORMED,
                std::string( "Entity declarations are not allowed, entity \"" ) + fromXml( in_szName ) +
                    "\" declared" );
    } );
}

void onEntityDeclaration( void* in_pContext, const xmlChar* in_szName, int, const xmlChar*, const xmlChar*, xmlChar* ) {
    refuseEntity( in_pContext, in_szName );
}

void onUnparsedEntityDeclaration( void* in_pContext, const xmlChar* in_szName, const xmlChar*, const xmlChar*,
                                  const xmlChar* ) {
    refuseEntity( in_pContext, in_szName );
}

void onAttributeDeclaration( void* in_pContext, const xmlChar* in_szElement, const xmlChar* in_szName, int in_nType,
                             int in_nDefault, const xmlChar* in_szDefault, xmlEnumeration* in_pValues ) {
    if ( !in_szDefault ) {
        xmlSAX2AttributeDecl( in_pContext, in_szElement, in_szName, in_nType, in_nDefault, in_szDefault, in_pValues );
        return;
    }
    xmlFreeEnumeration( in_pValues );
    runCallback( in_pContext, [in_szName]( ParseState& inout_state ) {
        refuse( inout_state, Rules::ILL_FORMED,
                std::string( "Default values of attributes are not allowed, attribute \"" ) + fromXml( in_szName ) +
                    "\" has one" );
    } );
}

int readChunk( void* in_pState, char* out_pBuffer, int in_nSize ) {
    auto& state = *static_cast<ParseState*>( in_pState );
    // libxml2 asks for a few thousand bytes at a time, also amid a start tag.
    if ( const char* const szExcess =
             findExcess( state, countAttributes( *state.pContext ), countNamespaces( *state.pContext ) ) )
        guard( state, [szExcess]( ParseState& inout_state ) { refuse( inout_state, Rules::TOO_LARGE, szExcess ); } );
    if ( state.bEnded )
        return 0;
    state.stream.read( out_pBuffer, in_nSize );
    if ( state.bInDtd )
        state.nDtdBytes += state.stream.gcount();
    if ( state.stream.bad() ) {
        state.bRefused = true;
        return -1;
    }
    return static_cast<int>( state.stream.gcount() );
}

void setHandlers( xmlSAXHandler& out_handlers, bool in_bBlocks ) {
    out_handlers.serror = &onError;
    out_handlers.startElementNs = &onStartElement;
    out_handlers.endElementNs = &onEndElement;
    out_handlers.endDocument = &onEndDocument;
    out_handlers.internalSubset = &onInternalSubset;
    out_handlers.externalSubset = &onExternalSubset;
    out_handlers.entityDecl = &onEntityDeclaration;
    out_handlers.unparsedEntityDecl = &onUnparsedEntityDeclaration;
    out_handlers.attributeDecl = &onAttributeDeclaration;
    if ( in_bBlocks ) {
        out_handlers.characters = &onText;
        out_handlers.cdataBlock = nullptr; // CDATA then comes as text
        out_handlers.comment = nullptr;
        out_handlers.processingInstruction = nullptr;
        out_handlers.reference = nullptr; // only undeclared entities come here, and they are errors
    }
}

} // namespace

XmlDocumentPtr readXmlDocument( const char* in_szPath, const Logger& in_logger ) {
    auto pBlocks = getDocumentBuilder() == DocumentBuilder::BLOCKS ? std::make_unique<DocumentBlocks>() : nullptr;
    ParseState state{ in_logger, in_szPath, pBlocks.get() };
    if ( const std::string strWhy = openInputFile( in_szPath, state.stream ); !strWhy.empty() ) {
        reportFile( state, Rules::UNREADABLE_FILE, 0, "Can't read, " + strWhy );
        return nullptr;
    }
    registerCodePages();
    const XmlParserCtxtPtr pContext( xmlNewParserCtxt() );
    if ( !pContext )
        throw std::bad_alloc();
    pContext->_private = &state;
    state.pContext = pContext.get();
    setHandlers( *pContext->sax, pBlocks != nullptr );
    XmlDocPtr pDocument( xmlCtxtReadIO( pContext.get(), &readChunk, nullptr, &state, in_szPath, nullptr,
                                        XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_NOBLANKS ) );
    if ( state.stream.bad() )
        reportFile( state, Rules::UNREADABLE_FILE, 0, "Can't read to the end" );
    if ( state.bRefused )
        return nullptr;
    // libxml2 stores an escaped URI, but messages name the file as the program named it.
    XmlStringPtr pUrl( xmlStrdup( toXml( in_szPath ) ) );
    if ( !pDocument || !pUrl )
        throw std::bad_alloc();
    xmlFree( const_cast<xmlChar*>( pDocument->URL ) );
    pDocument->URL = pUrl.release();
    return std::make_unique<XmlDocument>( std::move( pDocument ), std::move( pBlocks ) );
}

} // namespace Velquin::Pstn

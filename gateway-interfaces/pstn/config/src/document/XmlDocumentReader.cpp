#include "document/XmlDocumentReader.h"

#include <fstream>
#include <new>
#include <string>
#include <utility>

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>

#include "document/ElementPosition.h"
#include "document/InputFile.h"
#include "document/LibXml2.h"
#include "document/LibXml2Errors.h"

namespace Velquin::Pstn {

namespace {

// libxml2 compares each of these with all others that it has seen, before any callback hears of the first.
constexpr int MAX_ATTRIBUTES = 1000; // of an element
constexpr int MAX_NAMESPACES = 100;  // in scope
constexpr int MAX_NAMES = 100000;    // different ones in a file
constexpr std::streamsize MAX_DTD_BYTES = 16384;

/// What the callbacks of one parser context share. The context holds it in `_private`.
struct ParseState {
    const Logger& logger;
    const char* szPath;
    DocumentTree& tree;
    const xmlParserCtxt* pContext = nullptr;
    std::ifstream stream{};
    std::streamsize nDtdBytes = 0;
    unsigned int uErrors = 0;
    bool bRefused = false; // and told
    bool bEnded = false;   // by us: what libxml2 says of the rest is about nothing in the file

    static ParseState& of( void* in_pContext ) {
        return *static_cast<ParseState*>( static_cast<xmlParserCtxt*>( in_pContext )->_private );
    }
};

void reportFile( const ParseState& in_state, Finding::Kind in_eKind, int in_nLine, std::string in_strMessage ) {
    Finding finding;
    finding.eKind = in_eKind;
    finding.strFile = in_state.szPath;
    finding.ullLine = in_nLine > 0 ? static_cast<unsigned long long>( in_nLine ) : 0;
    finding.strMessage = std::move( in_strMessage );
    reportInFile( in_state.logger, std::move( finding ) );
}

/// Runs a callback's body; libxml2's C code above it must not be unwound.
template <class Body>
void guardCallback( ParseState& inout_state, Body in_body ) noexcept {
    try {
        in_body( inout_state );
    } catch ( ... ) {
        inout_state.bRefused = inout_state.bEnded = true;
        reportCurrentException( inout_state.logger, "readXmlDocument", __FILE__, __LINE__ );
    }
}

void onError( void* in_pContext, xmlError* in_pError ) {
    guardCallback( ParseState::of( in_pContext ), [in_pError]( ParseState& in_state ) {
        if ( in_state.bEnded )
            return;
        // Without a name for its prefix, or when memory ends, libxml2 hands out what it has and calls it well-formed.
        in_state.bRefused = in_state.bRefused || in_pError->level >= XML_ERR_ERROR;
        const int nLevel = in_pError->level == XML_ERR_WARNING ? Logger::WARNING_LEVEL : Logger::ERROR_LEVEL;
        reportLibXml2Error( in_state.logger, nLevel, *in_pError, in_state.szPath, in_state.uErrors );
    } );
}

/// Reports why the file is refused, once. The caller sees to it that parsing ends.
void refuse( ParseState& inout_state, std::string in_strWhy ) {
    if ( !inout_state.bEnded )
        reportFile( inout_state, Finding::Kind::OTHER,
                    inout_state.pContext->input ? inout_state.pContext->input->line : 0, std::move( in_strWhy ) );
    inout_state.bRefused = inout_state.bEnded = true;
}

/// What the file has too much of; null when of nothing.
/// @param in_nAttributes of the present start tag, as far as they are known
const char* findExcess( const ParseState& in_state, int in_nAttributes ) {
    if ( in_nAttributes > MAX_ATTRIBUTES )
        return "An element has more than 1000 attributes";
    if ( in_state.pContext->nsNr > 2 * MAX_NAMESPACES ) // prefix and URI
        return "More than 100 namespaces are declared";
    if ( xmlDictSize( in_state.pContext->dict ) > MAX_NAMES )
        return "The file has more than 100000 different names";
    if ( in_state.nDtdBytes > MAX_DTD_BYTES )
        return "The document type declaration is longer than 16384 bytes";
    return nullptr;
}

template <class Why>
void refuseAndStop( void* in_pContext, Why in_why ) {
    guardCallback( ParseState::of( in_pContext ),
                   [in_why]( ParseState& inout_state ) { refuse( inout_state, in_why() ); } );
    xmlStopParser( static_cast<xmlParserCtxt*>( in_pContext ) );
}

void onStartElement( void* in_pContext, const xmlChar* in_szName, const xmlChar* in_szPrefix, const xmlChar* in_szUri,
                     int in_nNamespaces, const xmlChar** in_aszNamespaces, int in_nAttributes, int in_nDefaulted,
                     const xmlChar** in_aszAttributes ) {
    if ( const char* const szExcess = findExcess( ParseState::of( in_pContext ), in_nAttributes ) ) {
        refuseAndStop( in_pContext, [szExcess] { return szExcess; } );
        return;
    }
    auto* const pContext = static_cast<xmlParserCtxt*>( in_pContext );
    guardCallback( ParseState::of( pContext ), [&]( ParseState& inout_state ) {
        inout_state.tree.startElement( pContext, in_szName, in_szPrefix, in_szUri, in_nNamespaces, in_aszNamespaces,
                                       in_nAttributes - in_nDefaulted, in_aszAttributes );
    } );
    if ( ParseState::of( pContext ).bEnded )
        xmlStopParser( pContext );
}

void refuseEntity( void* in_pContext, const xmlChar* in_szName ) {
    refuseAndStop( in_pContext, [in_szName] {
        return std::string( "Entity declarations are not allowed, entity \"" ) + fromXml( in_szName ) + "\" declared";
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
    refuseAndStop( in_pContext, [in_szName] {
        return std::string( "Default values of attributes are not allowed, attribute \"" ) + fromXml( in_szName ) +
               "\" has one";
    } );
}

int readChunk( void* in_pState, char* out_pBuffer, int in_nSize ) {
    auto& state = *static_cast<ParseState*>( in_pState );
    // libxml2 asks for a few thousand bytes at a time, amid a start tag too. It makes room for attributes by doubling.
    const int nAttributes = state.pContext->maxatts / 5 / 2;
    if ( const char* const szExcess = findExcess( state, nAttributes ) )
        guardCallback( state, [szExcess]( ParseState& inout_state ) { refuse( inout_state, szExcess ); } );
    if ( state.bEnded )
        return 0;
    state.stream.read( out_pBuffer, in_nSize );
    if ( state.pContext->inSubset != 0 )
        state.nDtdBytes += state.stream.gcount();
    if ( state.stream.bad() ) {
        state.bRefused = true;
        return -1;
    }
    return static_cast<int>( state.stream.gcount() );
}

/// Makes the state's stream what the context parses.
void setInput( xmlParserCtxt& inout_context, ParseState& inout_state ) {
    xmlParserInputBuffer* const pBuffer =
        xmlParserInputBufferCreateIO( &readChunk, nullptr, &inout_state, XML_CHAR_ENCODING_NONE );
    if ( !pBuffer )
        throw std::bad_alloc();
    xmlParserInput* const pInput = xmlNewIOInputStream( &inout_context, pBuffer, XML_CHAR_ENCODING_NONE );
    if ( !pInput ) {
        xmlFreeParserInputBuffer( pBuffer );
        throw std::bad_alloc();
    }
    if ( inputPush( &inout_context, pInput ) < 0 ) // and freed it
        throw std::bad_alloc();
    pInput->filename = reinterpret_cast<char*>( xmlStrdup( toXml( inout_state.szPath ) ) );
    if ( !pInput->filename )
        throw std::bad_alloc();
}

} // namespace

DocumentTreePtr readXmlDocument( const char* in_szPath, const Logger& in_logger ) {
    auto pTree = std::make_unique<DocumentTree>();
    ParseState state{ in_logger, in_szPath, *pTree };
    if ( const std::string strWhy = openInputFile( in_szPath, state.stream ); !strWhy.empty() ) {
        reportFile( state, Finding::Kind::UNREADABLE_FILE, 0, "Can't read, " + strWhy );
        return nullptr;
    }
    const XmlParserCtxtPtr pContext( xmlNewParserCtxt() );
    if ( !pContext )
        throw std::bad_alloc();
    pContext->_private = &state;
    state.pContext = pContext.get();
    pContext->sax->serror = &onError;
    pContext->sax->startElementNs = &onStartElement;
    pContext->sax->entityDecl = &onEntityDeclaration;
    pContext->sax->unparsedEntityDecl = &onUnparsedEntityDeclaration;
    pContext->sax->attributeDecl = &onAttributeDeclaration;
    xmlCtxtUseOptions( pContext.get(), XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_NOBLANKS );
    setInput( *pContext, state );

    const bool bWellFormed = xmlParseDocument( pContext.get() ) == 0;
    pTree->takeFrom( pContext.get() );
    if ( state.stream.bad() )
        reportFile( state, Finding::Kind::UNREADABLE_FILE, 0, "Can't read to the end" );
    // libxml2 takes a NUL character for the file's end.
    if ( const xmlParserInput* const pRest = pContext->input; pRest && pRest->cur < pRest->end && *pRest->cur == 0 )
        refuse( state, "NUL character" );
    xmlDoc* const pDocument = pTree->getDocument();
    if ( !bWellFormed || !pDocument || state.bRefused )
        return nullptr;
    // libxml2 keeps a URI, escaped; messages name the file as the program named it.
    XmlStringPtr pUrl( xmlStrdup( toXml( in_szPath ) ) );
    if ( !pUrl )
        throw std::bad_alloc();
    xmlFree( const_cast<xmlChar*>( pDocument->URL ) );
    pDocument->URL = pUrl.release();
    return pTree;
}

} // namespace Velquin::Pstn

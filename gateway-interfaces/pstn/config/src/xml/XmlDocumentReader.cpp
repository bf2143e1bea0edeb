#include "xml/XmlDocumentReader.h"

#include <fstream>
#include <new>
#include <string>
#include <utility>

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>

#include "xml/ElementPosition.h"
#include "xml/InputFile.h"
#include "xml/LibXml2Errors.h"

namespace Velquin::Pstn {

namespace {

/// What the callbacks of one parser context share. The context holds it in `_private`.
struct ParseState {
    const Logger& logger;
    const char* szPath;
    std::ifstream stream;
    bool bRefused = false; // and told

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
void guardCallback( void* in_pContext, Body in_body ) noexcept {
    ParseState& state = ParseState::of( in_pContext );
    try {
        in_body( state );
    } catch ( ... ) {
        state.bRefused = true;
        reportCurrentException( state.logger, "readXmlDocument", __FILE__, __LINE__ );
    }
}

void onError( void* in_pContext, xmlError* in_pError ) {
    guardCallback( in_pContext, [in_pError]( ParseState& in_state ) {
        // When memory ends, libxml2 hands out what it has so far and doesn't call it ill-formed.
        in_state.bRefused = in_state.bRefused || in_pError->level == XML_ERR_FATAL;
        const int nLevel = in_pError->level == XML_ERR_WARNING ? Logger::WARNING_LEVEL : Logger::ERROR_LEVEL;
        reportLibXml2Error( in_state.logger, nLevel, *in_pError, in_state.szPath );
    } );
}

void onStartElement( void* in_pContext, const xmlChar* in_szName, const xmlChar* in_szPrefix, const xmlChar* in_szUri,
                     int in_nNamespaces, const xmlChar** in_aszNamespaces, int in_nAttributes, int in_nDefaulted,
                     const xmlChar** in_aszAttributes ) {
    auto* const pContext = static_cast<xmlParserCtxt*>( in_pContext );
    // Not to look for identifiers (`xml:id`) among the attributes of every element; reading clears it at its start.
    pContext->loadsubset |= XML_SKIP_IDS;
    xmlSAX2StartElementNs( in_pContext, in_szName, in_szPrefix, in_szUri, in_nNamespaces, in_aszNamespaces,
                           in_nAttributes, in_nDefaulted, in_aszAttributes );
    if ( pContext->node && pContext->input && pContext->input->line > 0 )
        setElementLine( pContext->node, static_cast<unsigned long long>( pContext->input->line ) );
}

void refuseEntity( void* in_pContext, const xmlChar* in_szName ) {
    auto* const pContext = static_cast<xmlParserCtxt*>( in_pContext );
    guardCallback( in_pContext, [pContext, in_szName]( ParseState& inout_state ) {
        if ( inout_state.bRefused )
            return;
        inout_state.bRefused = true;
        reportFile( inout_state, Finding::Kind::OTHER, pContext->input ? pContext->input->line : 0,
                    std::string( "Entity declarations are not allowed, entity \"" ) + fromXml( in_szName ) +
                        "\" declared" );
    } );
    xmlStopParser( pContext );
}

void onEntityDeclaration( void* in_pContext, const xmlChar* in_szName, int, const xmlChar*, const xmlChar*, xmlChar* ) {
    refuseEntity( in_pContext, in_szName );
}

void onUnparsedEntityDeclaration( void* in_pContext, const xmlChar* in_szName, const xmlChar*, const xmlChar*,
                                  const xmlChar* ) {
    refuseEntity( in_pContext, in_szName );
}

int readChunk( void* in_pState, char* out_pBuffer, int in_nSize ) {
    auto& state = *static_cast<ParseState*>( in_pState );
    state.stream.read( out_pBuffer, in_nSize );
    if ( state.stream.bad() ) {
        state.bRefused = true;
        return -1;
    }
    return static_cast<int>( state.stream.gcount() );
}

} // namespace

XmlDocPtr readXmlDocument( const char* in_szPath, const Logger& in_logger ) {
    ParseState state{ in_logger, in_szPath, {} };
    if ( const std::string strWhy = openInputFile( in_szPath, state.stream ); !strWhy.empty() ) {
        reportFile( state, Finding::Kind::UNREADABLE_FILE, 0, "Can't read, " + strWhy );
        return nullptr;
    }
    const XmlParserCtxtPtr pContext( xmlNewParserCtxt() );
    if ( !pContext )
        throw std::bad_alloc();
    pContext->_private = &state;
    pContext->sax->serror = &onError;
    pContext->sax->startElementNs = &onStartElement;
    pContext->sax->entityDecl = &onEntityDeclaration;
    pContext->sax->unparsedEntityDecl = &onUnparsedEntityDeclaration;

    XmlDocPtr pDocument( xmlCtxtReadIO( pContext.get(), &readChunk, nullptr, &state, in_szPath, nullptr,
                                        XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_NOBLANKS ) );
    if ( state.stream.bad() )
        reportFile( state, Finding::Kind::UNREADABLE_FILE, 0, "Can't read to the end" );
    if ( !pDocument || state.bRefused )
        return nullptr;
    // libxml2 keeps a URI, escaped; messages name the file as the program named it.
    XmlStringPtr pUrl( xmlStrdup( toXml( in_szPath ) ) );
    if ( !pUrl )
        throw std::bad_alloc();
    xmlFree( const_cast<xmlChar*>( pDocument->URL ) );
    pDocument->URL = pUrl.release();
    return pDocument;
}

} // namespace Velquin::Pstn

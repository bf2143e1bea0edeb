// A document as the library keeps it, held against the one that libxml2 makes by itself.

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <libxml/parser.h>
#include <libxml/xmlsave.h>

#include <velquin/Logger.h>
#include <velquin/XML.h>

#include "ErrorCount.h"
#include "FuzzTarget.h"
#include "QuietLog.h"
#include "TemporaryFile.h"
#include "document/ElementPosition.h"
#include "document/LibXml2.h"
#include "document/XmlDocumentReader.h"
#include "reading/ChildElements.h"

using namespace Velquin::Pstn;

namespace {

std::string dump( xmlDoc* in_pDocument ) {
    const std::unique_ptr<xmlBuffer, LibXml2Deleter<xmlBuffer, xmlBufferFree>> pBuffer( xmlBufferCreate() );
    // What libxml2 takes for XHTML it would change while it writes.
    xmlSaveCtxt* const pContext = xmlSaveToBuffer( pBuffer.get(), nullptr, XML_SAVE_AS_XML | XML_SAVE_NO_XHTML );
    xmlSaveDoc( pContext, in_pDocument );
    xmlSaveClose( pContext );
    return fromXml( xmlBufferContent( pBuffer.get() ) );
}

/// The elements below a node, in the order of the file.
void gather( const xmlNode* in_pParent, std::vector<xmlNode*>& inout_vecElements ) {
    for ( xmlNode* const pElement : ChildElements( in_pParent ) ) {
        inout_vecElements.push_back( pElement );
        gather( pElement, inout_vecElements );
    }
}

std::vector<xmlNode*> gather( const xmlDoc* in_pDocument ) {
    std::vector<xmlNode*> vecElements;
    gather( reinterpret_cast<const xmlNode*>( in_pDocument ), vecElements );
    return vecElements;
}

} // namespace

int LLVMFuzzerTestOneInput( const std::uint8_t* in_pData, std::size_t in_uSize ) {
    static const QuietLog s_log( log4cplus::WARN_LOG_LEVEL );
    static const Velquin::Logger s_logger( "document" );
    static const Fuzz::TemporaryFile s_document( "document.xml" );
    const Velquin::XML::LibraryScope library;
    s_document.write( in_pData, in_uSize );

    const Fuzz::ErrorCount errors;
    const DocumentTreePtr pTree = readXmlDocument( s_document.getPath(), s_logger );
    Fuzz::require( !pTree == ( errors.get() > 0 ), "a document is read when nothing is wrong with it" );
    if ( !pTree )
        return 0;
    const XmlDocPtr pExpected(
        xmlReadFile( s_document.getPath(), nullptr,
                     XML_PARSE_NONET | XML_PARSE_NOBLANKS | XML_PARSE_NOERROR | XML_PARSE_NOWARNING ) );
    Fuzz::require( pExpected != nullptr, "what is read is well-formed" );
    Fuzz::require( dump( pTree->getDocument() ) == dump( pExpected.get() ), "both documents say the same" );
    const XmlDocPtr pCopy( xmlCopyDoc( pTree->getDocument(), 1 ) );
    Fuzz::require( dump( pCopy.get() ) == dump( pExpected.get() ), "so does a copy" );

    const std::vector<xmlNode*> vecElements = gather( pTree->getDocument() );
    const std::vector<xmlNode*> vecExpected = gather( pExpected.get() );
    for ( std::size_t u = 0; u < vecElements.size(); ++u ) {
        const long nLine = xmlGetLineNo( vecExpected[u] );
        Fuzz::require( getElementLine( vecElements[u] ) == static_cast<unsigned long long>( nLine ),
                       "an element knows its line" );
        Fuzz::require( xmlGetLineNo( vecElements[u] ) == nLine, "and tells libxml2" );
    }
    // All but those of the root.
    for ( std::size_t u = 1; u < vecElements.size(); ++u ) {
        pTree->removeAttributes( vecElements[u] );
        xmlFreePropList( std::exchange( vecExpected[u]->properties, nullptr ) );
    }
    Fuzz::require( dump( pTree->getDocument() ) == dump( pExpected.get() ), "attributes that are removed are gone" );
    return 0;
}

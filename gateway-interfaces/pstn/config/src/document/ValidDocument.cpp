#include "document/ValidDocument.h"

#include <string>
#include <utility>

#include <velquin/TraceScope.h>

#include "document/Element.h"
#include "document/LibXml2Errors.h"
#include "document/SchemaAdvisor.h"
#include "document/XmlDocumentReader.h"
#include "reading/ElementReader.h"
#include "reading/EntryListener.h"

namespace Velquin::Pstn {

namespace {

/// Whether a schema includes other files: a load doesn't read them.
bool refersToOtherFiles( const xmlNode* in_pElement, const Logger& in_logger ) {
    for ( xmlNode* const pChild : ChildPatterns( in_pElement ) ) {
        if ( isPattern( pChild, "include" ) || isPattern( pChild, "externalRef" ) ) {
            const ReaderWording wording{ "", "" };
            const ElementReader reader( pChild, in_logger, wording );
            Finding finding;
            finding.strRule = Rules::UNUSABLE_SCHEMA;
            reader.reportDeclared( "The schema must stand in one file: element " + std::string( reader.getName() ), ".",
                                   std::move( finding ) );
            return true;
        }
        if ( refersToOtherFiles( pChild, in_logger ) )
            return true;
    }
    return false;
}

/// Reports which attributes are wrong and which children are missing, whether libxml2 named the element or not. A
/// survey asks about every element: libxml2 passes over most faults behind the first.
void advise( LibXml2ErrorRoute& inout_route, const xmlDoc* in_pSchema, const xmlDoc* in_pDocument,
             const Logger& in_logger ) {
    SchemaAdvisor advisor( in_pSchema, in_logger );
    for ( const auto& [strName, uTimes] : inout_route.getUnplaced() ) {
        // Another error may have named some of them.
        const std::size_t uMost = uTimes + inout_route.getElementsWithWrongAttributes().size();
        const std::vector<xmlNode*> vecMisfits =
            advisor.findMisfits( xmlDocGetRootElement( in_pDocument ), strName, uMost );
        for ( xmlNode* const pElement : vecMisfits )
            inout_route.reportWrongAttributes( strName, pElement );
        if ( vecMisfits.empty() )
            inout_route.reportWrongAttributes( strName, nullptr );
    }
    if ( EntryListener::getCurrent() ) {
        advisor.adviseOnDocument( xmlDocGetRootElement( in_pDocument ) );
        return;
    }
    for ( xmlNode* const pElement : inout_route.getElementsWithWrongAttributes() )
        advisor.adviseOnAttributes( pElement );
    for ( xmlNode* const pElement : inout_route.getElementsWithWrongChildren() )
        advisor.adviseOnChildren( pElement );
}

/// Compiles the schema, and hands out its document for the SchemaAdvisor.
XmlRelaxNGPtr compileSchema( const char* in_szSchemaFile, const Logger& in_logger, XmlDocumentPtr& out_pSchema ) {
    VELQUIN_LOG_DEBUG( in_logger, "Validating Relax-NG file (" << in_szSchemaFile << ")..." );
    VELQUIN_LOG_DEBUG( in_logger, "Creating RelaxNG parser context..." );
    // The context is made from the document, whose faults are faults of compiling.
    VELQUIN_LOG_DEBUG( in_logger, "Compiling RelaxNG schema file " << in_szSchemaFile << "..." );
    LibXml2ErrorRoute errorRoute( in_logger, in_szSchemaFile );
    XmlRelaxNGPtr pSchema;
    out_pSchema = readXmlDocument( in_szSchemaFile, in_logger );
    if ( out_pSchema ) {
        // The context works on a copy of the document.
        const XmlRelaxNGParserCtxtPtr pContext( xmlRelaxNGNewDocParserCtxt( out_pSchema->get() ) );
        if ( !pContext ) {
            VELQUIN_REPORT_ERROR( in_logger, "failed to load the schema file : " << in_szSchemaFile );
            return nullptr;
        }
        xmlRelaxNGSetParserStructuredErrors( pContext.get(), &LibXml2ErrorRoute::onStructuredError, &errorRoute );
        if ( !refersToOtherFiles( reinterpret_cast<const xmlNode*>( out_pSchema->get() ), in_logger ) )
            pSchema.reset( xmlRelaxNGParse( pContext.get() ) );
        if ( errorRoute.isOutOfMemory() )
            pSchema.reset();
    }
    if ( !pSchema )
        VELQUIN_REPORT_ERROR( in_logger, "Failed to parse RelaxNG schema file " << in_szSchemaFile );
    return pSchema;
}

} // namespace

XmlDocumentPtr loadAndValidateXmlDocument( const char* in_szConfigFile, const char* in_szSchemaFile,
                                           const Logger& in_logger ) {
    VELQUIN_TRACE_SCOPE( in_logger, "Config::loadAndValidateXmlDocument" );
    VELQUIN_LOG_DEBUG( in_logger, "loading PSTN configuration \nPSTN Configuration XML file: "
                                      << in_szConfigFile << "\nRelaxNG schema file: " << in_szSchemaFile );
    XmlDocumentPtr pSchemaDocument;
    const XmlRelaxNGPtr pSchema = compileSchema( in_szSchemaFile, in_logger, pSchemaDocument );
    if ( !pSchema )
        return nullptr;
    const XmlRelaxNGValidCtxtPtr pContext( xmlRelaxNGNewValidCtxt( pSchema.get() ) );
    if ( !pContext ) {
        VELQUIN_REPORT_ERROR( in_logger,
                              "failed to create a XML validation context to validate file " << in_szConfigFile );
        return nullptr;
    }
    LibXml2ErrorRoute errorRoute( in_logger, in_szConfigFile );
    xmlRelaxNGSetValidStructuredErrors( pContext.get(), &LibXml2ErrorRoute::onStructuredError, &errorRoute );

    XmlDocumentPtr pDocument = readXmlDocument( in_szConfigFile, in_logger );
    if ( !pDocument ) {
        VELQUIN_REPORT_ERROR( in_logger, "failed to parse XML file " << in_szConfigFile );
        return nullptr;
    }
    // If a document has a URL, libxml2 walks over all preceding siblings for every error.
    XmlStringPtr pUrl( const_cast<xmlChar*>( std::exchange( pDocument->get()->URL, nullptr ) ) );
    const bool bValid = xmlRelaxNGValidateDoc( pContext.get(), pDocument->get() ) == 0;
    pDocument->get()->URL = pUrl.release();
    if ( !bValid || errorRoute.isOutOfMemory() ) {
        advise( errorRoute, pSchemaDocument->get(), pDocument->get(), in_logger );
        VELQUIN_REPORT_ERROR( in_logger, "failed to validate PSTN configuration file "
                                             << in_szConfigFile << " against schema " << in_szSchemaFile );
        EntryListener* const pListener = EntryListener::getCurrent();
        if ( !pListener )
            return nullptr;
        pListener->refuseFile();
    }
    return pDocument;
}

} // namespace Velquin::Pstn

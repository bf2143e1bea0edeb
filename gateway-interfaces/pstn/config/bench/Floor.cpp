#include "Floor.h"

#include <libxml/parser.h>
#include <libxml/relaxng.h>

bool runFloor( const char* in_szConfigFile, const char* in_szSchemaFile, int in_nParseOptions ) {
    xmlDoc* const pDocument = xmlReadFile( in_szConfigFile, nullptr, in_nParseOptions );
    xmlRelaxNGParserCtxt* const pParserContext = xmlRelaxNGNewParserCtxt( in_szSchemaFile );
    xmlRelaxNG* const pSchema = pParserContext ? xmlRelaxNGParse( pParserContext ) : nullptr;
    xmlRelaxNGFreeParserCtxt( pParserContext );
    xmlRelaxNGValidCtxt* const pValidationContext = pSchema ? xmlRelaxNGNewValidCtxt( pSchema ) : nullptr;
    const bool bValid = pDocument && pValidationContext && xmlRelaxNGValidateDoc( pValidationContext, pDocument ) == 0;
    xmlRelaxNGFreeValidCtxt( pValidationContext );
    xmlRelaxNGFree( pSchema );
    xmlFreeDoc( pDocument );
    return bValid;
}

// Runs the floor once: floor_once FILE SCHEMA [--options-of-load|--time-validation]
// Run it under callgrind with --toggle-collect=runFloor. --options-of-load reads the file with the library's parse
// options instead of libxml2's defaults. --time-validation prints the CPU seconds of validation alone, the best of
// three.

#include <algorithm>
#include <ctime>
#include <iostream>
#include <limits>
#include <string_view>

#include <libxml/parser.h>
#include <libxml/relaxng.h>

#include "Floor.h"

namespace {

constexpr int PARSE_OPTIONS_OF_LOAD = XML_PARSE_NONET | XML_PARSE_COMPACT | XML_PARSE_NOBLANKS;

bool timeValidation( const char* in_szConfigFile, const char* in_szSchemaFile ) {
    xmlDoc* const pDocument = xmlReadFile( in_szConfigFile, nullptr, PARSE_OPTIONS_OF_LOAD );
    xmlRelaxNGParserCtxt* const pParserContext = xmlRelaxNGNewParserCtxt( in_szSchemaFile );
    xmlRelaxNG* const pSchema = pParserContext ? xmlRelaxNGParse( pParserContext ) : nullptr;
    bool bValid = pDocument && pSchema;
    double dBest = std::numeric_limits<double>::max();
    const std::clock_t nEnd = std::clock() + CLOCKS_PER_SEC / 2;
    for ( int nRound = 0; bValid && ( nRound < 3 || std::clock() < nEnd ); ++nRound ) {
        xmlRelaxNGValidCtxt* const pContext = xmlRelaxNGNewValidCtxt( pSchema );
        const std::clock_t nStart = std::clock();
        bValid = xmlRelaxNGValidateDoc( pContext, pDocument ) == 0;
        dBest = std::min( dBest, static_cast<double>( std::clock() - nStart ) / CLOCKS_PER_SEC );
        xmlRelaxNGFreeValidCtxt( pContext );
    }
    xmlRelaxNGFree( pSchema );
    xmlRelaxNGFreeParserCtxt( pParserContext );
    xmlFreeDoc( pDocument );
    if ( bValid )
        std::cout << dBest << '\n';
    return bValid;
}

} // namespace

int main( int argc, char** argv ) {
    const std::string_view strMode = argc == 4 ? argv[3] : "";
    if ( argc < 3 || argc > 4 || ( argc == 4 && strMode != "--options-of-load" && strMode != "--time-validation" ) ) {
        std::cerr << "usage: floor_once FILE SCHEMA [--options-of-load|--time-validation]\n";
        return 2;
    }
    if ( strMode == "--time-validation" )
        return timeValidation( argv[1], argv[2] ) ? 0 : 1;
    return runFloor( argv[1], argv[2], strMode == "--options-of-load" ? PARSE_OPTIONS_OF_LOAD : 0 ) ? 0 : 1;
}

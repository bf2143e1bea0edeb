#include "xml/LibXml2Errors.h"

#include <cstdarg>
#include <cstdio>
#include <utility>

#include <libxml/globals.h>

#include "xml/ElementPosition.h"
#include "xml/LibXml2.h"

namespace Velquin::Pstn {

namespace {

/// libxml2's messages end with a line break, and some go over several lines.
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

void reportMessage( const Logger& in_logger, int in_nLevel, const char* in_szMessage, Finding in_finding ) {
    in_finding.nLevel = in_nLevel;
    in_finding.strMessage = toOneLine( in_szMessage );
    reportInFile( in_logger, std::move( in_finding ) );
}

// libxml2 prints through here, in pieces, what it has no structured error for.
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

} // namespace

void reportInFile( const Logger& in_logger, Finding in_finding ) {
    in_finding.strText = in_finding.strMessage + " in file " + in_finding.strFile;
    if ( in_finding.ullLine != 0 )
        in_finding.strText += " at line " + std::to_string( in_finding.ullLine );
    in_finding.strText += '.';
    reportFinding( in_logger, std::move( in_finding ), __FILE__, __LINE__ );
}

void reportLibXml2Error( const Logger& in_logger, int in_nLevel, const xmlError& in_error, const char* in_szFile ) {
    Finding finding;
    finding.strFile = in_error.file && in_error.file[0] != '\0' ? in_error.file : in_szFile;
    finding.ullLine = in_error.line > 0 ? static_cast<unsigned long long>( in_error.line ) : 0;
    if ( const auto* const pNode = static_cast<const xmlNode*>( in_error.node );
         pNode && pNode->type == XML_ELEMENT_NODE ) {
        finding.ullLine = getElementLine( pNode );
        finding.strElementPath = getElementPath( pNode );
        // The document knows the file as the program named it.
        if ( const char* const szFile = getElementFile( pNode ); *szFile != '\0' )
            finding.strFile = szFile;
    }
    reportMessage( in_logger, in_nLevel, in_error.message, std::move( finding ) );
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

void LibXml2ErrorRoute::onStructuredError( void* in_pRoute, xmlError* in_pError ) {
    const auto& route = *static_cast<const LibXml2ErrorRoute*>( in_pRoute );
    try {
        reportLibXml2Error( route.m_logger, Logger::ERROR_LEVEL, *in_pError, route.m_strFile.c_str() );
    } catch ( ... ) {
        // libxml2's C code in between must not be unwound.
        reportCurrentException( route.m_logger, __func__, __FILE__, __LINE__ );
    }
}

} // namespace Velquin::Pstn

#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <velquin/Finding.h>

#include "document/LibXml2Compat.h"

namespace Velquin::Pstn {

/// Reports a finding about a file or one of its lines. The log line has the message, the file and the line.
void reportInFile( const Logger& in_logger, Finding in_finding );

/// Reports an error of libxml2. The log line has the message, the file and the line. Only the first hundred errors are
/// reported.
/// @param in_szFile the file that is meant when the error names none
/// @param inout_uErrors number of errors of that level before this one, 0 at first
void reportLibXml2Error( const Logger& in_logger, int in_nLevel, const xmlError& in_error, const char* in_szFile,
                         unsigned int& inout_uErrors );

/// While it lives, it sends libxml2's errors of this thread to a logger, at ERROR. Then it puts the program's own
/// handlers back. It also serves as the context of libxml2's structured callbacks.
class LibXml2ErrorRoute {
public:
    /// @param in_szFile the file that is meant when an error names none
    LibXml2ErrorRoute( const Logger& in_logger, std::string in_strFile );
    LibXml2ErrorRoute( const LibXml2ErrorRoute& ) = delete;
    LibXml2ErrorRoute& operator=( const LibXml2ErrorRoute& ) = delete;
    ~LibXml2ErrorRoute();

    /// Whether memory ended. If so, libxml2's own verdict means nothing.
    bool isOutOfMemory() const noexcept { return m_bOutOfMemory; }

    /// The reported elements whose attributes validation refused, each once.
    const std::vector<xmlNode*>& getElementsWithWrongAttributes() const noexcept { return m_vecWrongAttributes; }

    /// The reported elements that may lack a child, each once.
    const std::vector<xmlNode*>& getElementsWithWrongChildren() const noexcept { return m_vecWrongChildren; }

    /// Names of elements whose attributes validation refused without saying which elements these are, and how often it
    /// did. They are not reported yet: call reportWrongAttributes for each element found.
    const std::map<std::string, unsigned int>& getUnplaced() const noexcept { return m_mapUnplaced; }

    /// Reports that the attributes of an element are refused, once for each element.
    /// @param in_pElement null when no such element of that name was found
    void reportWrongAttributes( std::string in_strName, xmlNode* in_pElement );

    /// The structured error callback for libxml2.
    /// @param in_pRoute the LibXml2ErrorRoute
    static void onStructuredError( void* in_pRoute, XmlErrorPtr in_pError );

private:
    void report( const xmlError& in_error );

    const Logger& m_logger;
    std::string m_strFile;
    unsigned int m_uErrors = 0;
    bool m_bOutOfMemory = false;
    std::vector<xmlNode*> m_vecWrongAttributes;
    std::vector<xmlNode*> m_vecWrongChildren;
    std::map<std::string, unsigned int> m_mapUnplaced;
    xmlStructuredErrorFunc m_pOuterStructuredError;
    void* m_pOuterStructuredContext;
    xmlGenericErrorFunc m_pOuterGenericError;
    void* m_pOuterGenericContext;
};

} // namespace Velquin::Pstn

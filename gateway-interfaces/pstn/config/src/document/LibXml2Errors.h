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

/// Reports a finding about a file as a whole or a line of it: its message, with file and line in the log line too.
void reportInFile( const Logger& in_logger, Finding in_finding );

/// Reports what libxml2 found: its message, with file and line in the log line too. Of a flood, the first hundred.
/// @param in_szFile the file that is meant when the error names none
/// @param inout_uErrors how many there were before, 0 at first
void reportLibXml2Error( const Logger& in_logger, int in_nLevel, const xmlError& in_error, const char* in_szFile,
                         unsigned int& inout_uErrors );

/// Routes to a logger, at ERROR, what libxml2 reports on this thread, for as long as the object lives; then puts the
/// program's own handlers back. It also serves as the context of libxml2's structured callbacks.
class LibXml2ErrorRoute {
public:
    /// @param in_szFile the file that is meant when an error names none
    LibXml2ErrorRoute( const Logger& in_logger, std::string in_strFile );
    LibXml2ErrorRoute( const LibXml2ErrorRoute& ) = delete;
    LibXml2ErrorRoute& operator=( const LibXml2ErrorRoute& ) = delete;
    ~LibXml2ErrorRoute();

    /// Whether memory ended: libxml2's own verdict means nothing then.
    bool isOutOfMemory() const noexcept { return m_bOutOfMemory; }

    /// The elements whose attributes validation refused, each once, as far as they were reported.
    const std::vector<xmlNode*>& getElementsWithWrongAttributes() const noexcept { return m_vecWrongAttributes; }

    /// The elements in which validation may have missed a child, each once, as far as they were reported.
    const std::vector<xmlNode*>& getElementsWithWrongChildren() const noexcept { return m_vecWrongChildren; }

    /// The names of elements whose attributes validation refused without telling which elements they are, and how often
    /// it did. Not reported: who finds the elements does it.
    const std::map<std::string, unsigned int>& getUnplaced() const noexcept { return m_mapUnplaced; }

    /// Reports that the attributes of an element are refused, unless that was reported before.
    /// @param in_pElement null for one of that name that was not found
    void reportWrongAttributes( std::string in_strName, xmlNode* in_pElement );

    /// A structured error callback of libxml2, whose context is a LibXml2ErrorRoute.
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

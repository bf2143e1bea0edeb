#pragma once

#include <string>

#include <velquin/Logger.h>

#include "reading/XmlNodeFwd.h"

struct _xmlDoc;

namespace Velquin::Pstn {

/// Replaces the root element of the document by a new one; null when libxml2 can't. Logs nothing.
xmlNode* setRootElement( _xmlDoc* in_pDocument, const char* in_szName );

/// Appends a new child element to the parent; null when libxml2 can't. Logs nothing.
xmlNode* addChildElement( xmlNode* in_pParent, const char* in_szName );

/// False when libxml2 can't. Logs nothing.
bool addAttribute( xmlNode* in_pElement, const char* in_szAttribute, const char* in_szValue );

/// Writes the attributes of one element. On failure it reports "Failed to add " + attribute +
/// " to board XML element." and yields false.
class ElementWriter {
public:
    ElementWriter( xmlNode* in_pElement, const Logger& in_logger ) noexcept
        : m_pElement( in_pElement ), m_logger( in_logger ) {}

    bool addText( const char* in_szAttribute, const char* in_szValue ) const;
    bool addNumber( const char* in_szAttribute, unsigned long long in_ullValue ) const {
        return addText( in_szAttribute, std::to_string( in_ullValue ).c_str() );
    }

private:
    xmlNode* m_pElement;
    const Logger& m_logger;
};

} // namespace Velquin::Pstn

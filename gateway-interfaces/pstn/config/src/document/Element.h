#pragma once

#include <string>
#include <string_view>

#include "document/LibXml2.h"

namespace Velquin::Pstn {

// What readers ask of an element.

/// The element's local name.
const char* getElementName( const xmlNode* in_pElement ) noexcept;

/// Remembers the line of an element of a document of this library in the element itself: what libxml2 keeps ends at
/// 65,534.
void setElementLine( xmlNode* in_pElement, unsigned long long in_ullLine ) noexcept;

/// The line on which the element's start tag ends, from 1; what libxml2 knows when nothing was remembered.
unsigned long long getElementLine( const xmlNode* in_pElement ) noexcept;

/// The element's XPath; empty when memory ends. Costs more the more siblings the element has: ask when a message is
/// written, not before.
std::string getElementPath( const xmlNode* in_pElement );

/// Whether the element's name has a namespace.
bool hasNamespace( const xmlNode* in_pElement ) noexcept;

/// Whether the element is of that namespace.
bool isOfNamespace( const xmlNode* in_pElement, std::string_view in_strUri ) noexcept;

/// The file of the element's document, as it was named to the load.
const char* getElementFile( const xmlNode* in_pElement ) noexcept;

/// The text of one attribute: in place in the document where it stands in one piece, else in a copy.
class AttributeText {
public:
    const char* c_str() const noexcept { return m_szText; }
    std::string_view view() const noexcept { return m_szText; }

private:
    friend bool findAttribute( const xmlNode*, const char*, AttributeText& );

    const char* m_szText = "";
    XmlStringPtr m_pCopy;
};

/// Finds the attribute of that name. One whose name has a prefix is none of the format's.
bool findAttribute( const xmlNode* in_pElement, const char* in_szName, AttributeText& out_text );

} // namespace Velquin::Pstn

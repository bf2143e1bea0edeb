#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/LibXml2.h"

namespace Velquin::Pstn {

// What readers ask of an element.

/// The element's local name.
const char* getElementName( const xmlNode* in_pElement ) noexcept;

/// Gives an element of a document of this library the name that is meant. Where ElementPaths live, its path keeps the
/// name that the file has. Does nothing when memory ends.
void setElementName( xmlNode* in_pElement, const std::string& in_strName );

/// Where an element stands in its file.
struct ElementPosition {
    std::uint32_t uLine;   ///< on which the start tag ends, from 1; 0 when unknown
    std::uint32_t uNumber; ///< in the order of the start tags, from 1; 0 when unknown
};

/// Stores the position of an element in the element itself: libxml2's own line numbers end at 65,534. Only for elements
/// of this library's documents.
void setElementPosition( xmlNode* in_pElement, ElementPosition in_position ) noexcept;

/// The line on which the element's start tag ends, from 1. For a document of another program, libxml2's line number; 0
/// when there is none.
unsigned long long getElementLine( const xmlNode* in_pElement ) noexcept;

/// The element's number in its file; 0 for a document of another program.
unsigned long long getElementNumber( const xmlNode* in_pElement ) noexcept;

/// The element's XPath; empty when memory ends. The cost grows with the number of siblings: ask only when a message is
/// written.
std::string getElementPath( const xmlNode* in_pElement );

/// The element in which the element stands; null for a root.
const xmlNode* getParentElement( const xmlNode* in_pElement ) noexcept;

/// The encoding that the element's document declares; null when it declares none.
const char* getElementEncoding( const xmlNode* in_pElement ) noexcept;

/// Whether the element's name has a namespace.
bool hasNamespace( const xmlNode* in_pElement ) noexcept;

/// Whether the element is in that namespace.
bool isOfNamespace( const xmlNode* in_pElement, std::string_view in_strUri ) noexcept;

/// The file of the element's document, as the program named it.
const char* getElementFile( const xmlNode* in_pElement ) noexcept;

/// The text of one attribute. It refers to the document where the text is in one piece there, and is a copy otherwise.
class AttributeText {
public:
    const char* c_str() const noexcept { return m_szText; }
    std::string_view view() const noexcept { return m_szText; }

private:
    friend bool findAttribute( const xmlNode*, const char*, AttributeText& );

    const char* m_szText = "";
    XmlStringPtr m_pCopy;
};

/// Finds the attribute of that name. Passes over names with a prefix: they are none of the format's.
bool findAttribute( const xmlNode* in_pElement, const char* in_szName, AttributeText& out_text );

} // namespace Velquin::Pstn

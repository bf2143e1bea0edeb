#pragma once

#include <string>

#include <libxml/tree.h>

namespace Velquin::Pstn {

/// Remembers the line of an element of a document of this library in the element itself: what libxml2 keeps ends at
/// 65,534.
void setElementLine( xmlNode* in_pElement, unsigned long long in_ullLine ) noexcept;

/// The line on which the element's start tag ends, from 1; what libxml2 knows when nothing was remembered.
unsigned long long getElementLine( const xmlNode* in_pElement ) noexcept;

/// Remembers the identifier of a board or an interface in its element, whose attributes don't outlive their reading;
/// does nothing to a document that isn't this library's.
void setElementId( xmlNode* in_pElement, unsigned int in_uId ) noexcept;

/// The identifier that was remembered.
unsigned int getElementId( const xmlNode* in_pElement ) noexcept;

/// The element's XPath; empty when memory ends. Costs more the more siblings the element has: ask when a message is
/// written, not before.
std::string getElementPath( const xmlNode* in_pElement );

/// The file of the element's document, as it was named to the load.
const char* getElementFile( const xmlNode* in_pElement ) noexcept;

} // namespace Velquin::Pstn

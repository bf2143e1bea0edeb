#pragma once

#include <velquin/Logger.h>

#include "document/XmlDocument.h"

namespace Velquin::Pstn {

/// Parses one XML file. In the document, every element has its true line (see Element.h), and the URL is the path as
/// given. The parser reads no other file and no network, and expands no entity. Null after at least one ERROR on the
/// logger: the file can't be read, is not well-formed, declares entities or default values of attributes, or has so
/// much of something that parsing would take long.
/// @param in_szPath a regular file
/// @throws std::bad_alloc
XmlDocumentPtr readXmlDocument( const char* in_szPath, const Logger& in_logger );

} // namespace Velquin::Pstn

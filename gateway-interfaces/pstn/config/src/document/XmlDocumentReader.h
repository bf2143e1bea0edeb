#pragma once

#include <velquin/Logger.h>

#include "document/XmlDocument.h"

namespace Velquin::Pstn {

/// Parses one XML file into a document of which every element knows its true line (see Element.h) and whose URL is the
/// path as given. No other file and no network is touched, and a document that declares an entity is refused before any
/// is expanded. Null after at least one ERROR on the logger: the file can't be read, is not well-formed, declares
/// entities or default values of attributes, or has so much of something that parsing would take long.
/// @param in_szPath a regular file
/// @throws std::bad_alloc
XmlDocumentPtr readXmlDocument( const char* in_szPath, const Logger& in_logger );

} // namespace Velquin::Pstn

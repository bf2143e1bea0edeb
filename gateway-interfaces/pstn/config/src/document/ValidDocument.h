#pragma once

#include <velquin/Logger.h>

#include "document/XmlDocument.h"

namespace Velquin::Pstn {

/// Reads a configuration file (see XmlDocumentReader.h) and validates it against a RELAX NG schema, which must stand in
/// one file. Null after at least one ERROR on the logger. If the schema refuses the document, the lines say which
/// attribute or element is wrong, and what would be right.
/// @throws std::bad_alloc
XmlDocumentPtr loadAndValidateXmlDocument( const char* in_szConfigFile, const char* in_szSchemaFile,
                                           const Logger& in_logger );

} // namespace Velquin::Pstn

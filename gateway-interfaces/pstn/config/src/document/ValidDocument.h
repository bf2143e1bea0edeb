#pragma once

#include <velquin/Logger.h>

#include "document/XmlDocument.h"

namespace Velquin::Pstn {

/// Reads a configuration file (see XmlDocumentReader.h) and validates it against a RelaxNG schema, which stands in one
/// file. Null after at least one ERROR on the logger; of a document that the schema refuses, the lines say which
/// attribute or element it is, and what would be right.
/// @throws std::bad_alloc
XmlDocumentPtr loadAndValidateXmlDocument( const char* in_szConfigFile, const char* in_szSchemaFile,
                                           const Logger& in_logger );

} // namespace Velquin::Pstn

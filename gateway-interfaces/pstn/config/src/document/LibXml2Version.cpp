#include "document/LibXml2Version.h"

#include <cstdlib>

#include <libxml/parser.h>
#include <libxml/xmlversion.h>

namespace Velquin::Pstn {

LibXml2Version getLibXml2Version() {
    // 20914 is 2.9.14. What a libxml2 between two releases appends is no part of the number.
    const long nRunning = std::strtol( xmlParserVersion, nullptr, 10 );
    return { std::to_string( nRunning / 10000 ) + '.' + std::to_string( nRunning / 100 % 100 ) + '.' +
                 std::to_string( nRunning % 100 ),
             LIBXML_DOTTED_VERSION };
}

} // namespace Velquin::Pstn

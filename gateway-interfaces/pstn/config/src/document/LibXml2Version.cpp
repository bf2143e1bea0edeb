#include "document/LibXml2Version.h"

#include "document/LibXml2Compat.h"

namespace Velquin::Pstn {

LibXml2Version getLibXml2Version() {
    const long nRunning = getRunningLibXml2();
    return { std::to_string( nRunning / 10000 ) + '.' + std::to_string( nRunning / 100 % 100 ) + '.' +
                 std::to_string( nRunning % 100 ),
             LIBXML_DOTTED_VERSION };
}

} // namespace Velquin::Pstn

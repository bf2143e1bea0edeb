#pragma once

#include <string>

#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// Versions of libxml2, as in "2.9.14".
struct LibXml2Version {
    std::string strRunning;
    std::string strBuiltWith; ///< the one that the library was built with
};

/// Never fails; throws only std::bad_alloc.
VELQUIN_PSTN_CONFIG_EXPORT LibXml2Version getLibXml2Version();

} // namespace Velquin::Pstn

#pragma once

#include <cstdlib>

#include <libxml/parser.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlversion.h>

// What differs between the versions of libxml2, from 2.9.14 on. The libxml2 that runs is not older than that of the
// build.

namespace Velquin::Pstn {

/// The version that runs: 20914 is 2.9.14. What a libxml2 between two releases appends is no part of the number.
inline long getRunningLibXml2() noexcept {
    return std::strtol( xmlParserVersion, nullptr, 10 );
}

template <class TError>
TError* getErrorOf( void ( * )( void*, TError* ) );

/// An error as libxml2 hands it to structured callbacks. It is const since 2.12.
using XmlErrorPtr = decltype( getErrorOf( xmlStructuredErrorFunc{} ) );

// Before 2.12, libxml2 compares each attribute of a tag, and each namespace in scope, with all others before it calls
// back. So these counts are read amid a tag. Later versions use a hash: there it is soon enough to count in a callback.

/// About how many attributes the current tag has so far: libxml2 doubles the room for them.
inline int countAttributes( [[maybe_unused]] const xmlParserCtxt& in_context ) noexcept {
#if LIBXML_VERSION >= 21200
    return 0;
#else
    return in_context.maxatts / 5 / 2; // five pointers each
#endif
}

/// How many namespaces are in scope.
inline int countNamespaces( [[maybe_unused]] const xmlParserCtxt& in_context ) noexcept {
#if LIBXML_VERSION >= 21200
    return 0;
#else
    return in_context.nsNr / 2;        // prefix and URI
#endif
}

} // namespace Velquin::Pstn

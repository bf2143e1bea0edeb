#pragma once

#include <memory>

#include <libxml/parser.h>
#include <libxml/relaxng.h>
#include <libxml/tree.h>

namespace Velquin::Pstn {

// Owners of what libxml2 allocates.

template <class T, void ( *release )( T* )>
struct LibXml2Deleter {
    void operator()( T* in_p ) const noexcept { release( in_p ); }
};

struct XmlStringDeleter {
    void operator()( xmlChar* in_sz ) const noexcept { xmlFree( in_sz ); }
};

using XmlDocPtr = std::unique_ptr<xmlDoc, LibXml2Deleter<xmlDoc, xmlFreeDoc>>;
using XmlNodePtr = std::unique_ptr<xmlNode, LibXml2Deleter<xmlNode, xmlFreeNode>>;
using XmlParserCtxtPtr = std::unique_ptr<xmlParserCtxt, LibXml2Deleter<xmlParserCtxt, xmlFreeParserCtxt>>;
using XmlRelaxNGPtr = std::unique_ptr<xmlRelaxNG, LibXml2Deleter<xmlRelaxNG, xmlRelaxNGFree>>;
using XmlRelaxNGParserCtxtPtr =
    std::unique_ptr<xmlRelaxNGParserCtxt, LibXml2Deleter<xmlRelaxNGParserCtxt, xmlRelaxNGFreeParserCtxt>>;
using XmlRelaxNGValidCtxtPtr =
    std::unique_ptr<xmlRelaxNGValidCtxt, LibXml2Deleter<xmlRelaxNGValidCtxt, xmlRelaxNGFreeValidCtxt>>;
using XmlStringPtr = std::unique_ptr<xmlChar, XmlStringDeleter>;

inline const xmlChar* toXml( const char* in_sz ) {
    return reinterpret_cast<const xmlChar*>( in_sz );
}

/// The text as `char`; empty for null, which libxml2 yields when memory ends.
inline const char* fromXml( const xmlChar* in_sz ) {
    return in_sz ? reinterpret_cast<const char*>( in_sz ) : "";
}

} // namespace Velquin::Pstn

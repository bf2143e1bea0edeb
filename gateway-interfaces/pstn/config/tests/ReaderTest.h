#pragma once

#include <cctype>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <libxml/parser.h>

#include <velquin/XML.h>

#include "ConfigTest.h"

// What the tests of readers share. Expected lines are composed from what differs: the reader, its words, the element
// and the attribute.

namespace Velquin::Pstn::Test {

/// A case of a serializer that gets or makes an object of the wrong class, or none.
/// @param in_yieldsNull calls it
template <class TXmlSerializer>
CallCase misused( const std::string& in_strExpression, const std::function<bool()>& in_yieldsNull,
                  const char* in_szHow = "WithWrongClass" ) {
    const std::string strName = TXmlSerializer::getMemAccountName();
    return { strName + in_szHow,
             [in_yieldsNull] { EXPECT_TRUE( in_yieldsNull() ); },
             { assertion( in_strExpression, strName ) } };
}

/// The root element of a document of its own, for serializers that are called without a load.
class Element {
public:
    explicit Element( const std::string& in_strText )
        : m_pDocument(
              xmlReadMemory( in_strText.c_str(), static_cast<int>( in_strText.size() ), nullptr, nullptr, 0 ) ) {}

    xmlNode* get() const { return xmlDocGetRootElement( m_pDocument.get() ); }

private:
    struct Deleter {
        void operator()( xmlDoc* in_pDocument ) const { xmlFreeDoc( in_pDocument ); }
    };
    std::unique_ptr<xmlDoc, Deleter> m_pDocument;
};

/// A new object; null for no class.
template <class TBase, class T>
TBase* makeSome() {
    if constexpr ( std::is_void_v<T> )
        return nullptr;
    else
        return new T();
}

/// What a handle holds, as an object of its class.
template <class T, class THandle>
const T& as( const THandle& in_handle ) {
    return dynamic_cast<const T&>( *in_handle );
}

} // namespace Velquin::Pstn::Test

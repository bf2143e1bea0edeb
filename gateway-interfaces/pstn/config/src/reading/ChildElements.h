#pragma once

#include <velquin/XML.h>

#include "reading/XmlNodeFwd.h"

namespace Velquin::Pstn {

/// The child elements of an element in document order, all or those of one name. For a range-based for.
class ChildElements {
public:
    class Iterator {
    public:
        Iterator( xmlNode* in_pElement, const char* in_szName ) noexcept
            : m_pElement( in_pElement ), m_szName( in_szName ) {}
        xmlNode* operator*() const noexcept { return m_pElement; }
        Iterator& operator++() {
            m_pElement = XML::findNextElement( m_pElement, m_szName );
            return *this;
        }
        bool operator==( const Iterator& in_other ) const noexcept { return m_pElement == in_other.m_pElement; }

    private:
        xmlNode* m_pElement;
        const char* m_szName;
    };

    explicit ChildElements( const xmlNode* in_pParent, const char* in_szName = nullptr ) noexcept
        : ChildElements( in_pParent, in_szName, in_szName ) {}
    /// The first child of one name, and after it the children of another name.
    ChildElements( const xmlNode* in_pParent, const char* in_szFirstName, const char* in_szName ) noexcept
        : m_pParent( in_pParent ), m_szFirstName( in_szFirstName ), m_szName( in_szName ) {}

    Iterator begin() const { return { XML::findFirstElement( m_pParent, m_szFirstName ), m_szName }; }
    Iterator end() const noexcept { return { nullptr, m_szName }; }
    bool empty() const { return begin() == end(); }

private:
    const xmlNode* m_pParent;
    const char* m_szFirstName;
    const char* m_szName;
};

} // namespace Velquin::Pstn

#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <libxml/tree.h>

#include <velquin/XML.h>

namespace Velquin::Pstn {

/// The patterns that stand directly in a pattern, for a range-based for. Elements of other namespaces are annotations.
class ChildPatterns {
public:
    class Iterator {
    public:
        explicit Iterator( xmlNode* in_pElement ) : m_pPattern( skipAnnotations( in_pElement ) ) {}
        xmlNode* operator*() const noexcept { return m_pPattern; }
        Iterator& operator++() {
            m_pPattern = skipAnnotations( XML::findNextElement( m_pPattern ) );
            return *this;
        }
        bool operator==( const Iterator& in_other ) const noexcept { return m_pPattern == in_other.m_pPattern; }

    private:
        static xmlNode* skipAnnotations( xmlNode* in_pElement );

        xmlNode* m_pPattern;
    };

    explicit ChildPatterns( const xmlNode* in_pPattern ) noexcept : m_pPattern( in_pPattern ) {}

    Iterator begin() const { return Iterator( XML::findFirstElement( m_pPattern ) ); }
    Iterator end() const { return Iterator( nullptr ); }

private:
    const xmlNode* m_pPattern;
};

/// Finds the patterns of a RELAX NG schema, in the XML syntax, that describe the elements of a document.
class SchemaPatterns {
public:
    using Patterns = std::vector<const xmlNode*>;

    /// One step into a pattern. Definitions can refer to each other, so a small schema can have any number of steps:
    /// too many make isLost() true.
    class Step {
    public:
        explicit Step( SchemaPatterns& in_patterns );
        Step( const Step& ) = delete;
        Step& operator=( const Step& ) = delete;
        ~Step() { --m_patterns.m_uDepth; }

    private:
        SchemaPatterns& m_patterns;
    };

    /// @param in_pSchema outlives this object
    explicit SchemaPatterns( const xmlDoc* in_pSchema );

    /// Starts to count steps for another element.
    void beginElement() noexcept { m_uSteps = 0; }
    /// Whether the schema can't be followed: it refers to itself, or too often to one definition, or it has patterns
    /// that this class doesn't know. What was found is then only a part.
    bool isLost() const noexcept { return m_bLost; }

    /// The `element` patterns of an element. The search starts at the root.
    const Patterns& find( const xmlNode* in_pElement );
    /// The `element` patterns of an element whose parent's patterns are known. A root has the start of the grammar as
    /// parent.
    const Patterns& find( const Patterns& in_vecParents, const xmlNode* in_pElement );
    /// The same for an element of that name.
    const Patterns& find( const Patterns& in_vecParents, const std::string& in_strName );
    /// The definitions that a reference names; the start of the grammar for null.
    const Patterns& getDefinitions( const xmlNode* in_pRef ) const;

    /// The names of the required children that the element lacks. Alternatives are one text.
    std::vector<std::string> findMissingChildren( const xmlNode* in_pElement );
    /// The same for an element whose patterns are known.
    std::vector<std::string> findMissingChildren( const xmlNode* in_pElement, const Patterns& in_vecPatterns );

    /// The names of all children that the content of the patterns takes, in the order of the schema.
    std::vector<std::string> findChildNames( const Patterns& in_vecPatterns );

private:
    std::vector<std::string> findMissing( const xmlNode* in_pPattern, const xmlNode* in_pElement );
    std::vector<std::string> findMissingAmong( const xmlNode* in_pPattern, const xmlNode* in_pElement );
    void collectElements( const xmlNode* in_pPattern, std::string_view in_strName,
                          std::set<const xmlNode*>& inout_setSeen, Patterns& out_vecPatterns );

    std::map<std::string, Patterns, std::less<>> m_mapDefinitions;
    std::map<std::pair<Patterns, std::string>, Patterns> m_mapPatterns; // by the parent's patterns and the name
    unsigned int m_uDepth = 0;
    unsigned int m_uSteps = 0; // for the current element
    bool m_bLost = false;      // stays true: to try again for each element would take too long
};

/// The attribute of a pattern; empty when it has none of that name.
std::string getPatternAttribute( const xmlNode* in_pPattern, const char* in_szName );
bool isPattern( const xmlNode* in_pPattern, std::string_view in_strName );

/// Whether a missing child, or one of its alternatives, has the name.
bool isAmong( const std::string& in_strName, const std::string& in_strAlternatives );

/// Appends the items that aren't there yet.
template <class T>
void merge( std::vector<T>& inout_vecAll, const std::vector<T>& in_vecMore ) {
    for ( const T& one : in_vecMore ) {
        if ( std::find( inout_vecAll.begin(), inout_vecAll.end(), one ) == inout_vecAll.end() )
            inout_vecAll.push_back( one );
    }
}

} // namespace Velquin::Pstn

#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <libxml/tree.h>

namespace Velquin::Pstn {

/// The patterns of a RelaxNG schema in the XML syntax, found by the elements of a document.
class SchemaPatterns {
public:
    using Patterns = std::vector<const xmlNode*>;

    /// One step into a pattern. A schema's size says nothing of how many there are: definitions can refer to each
    /// other.
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

    /// Begins to count steps anew, for another element.
    void beginElement() noexcept { m_uSteps = 0; }
    /// Whether the schema refers to itself, or to one definition over and over, beyond measure. What was found is no
    /// more than a part then.
    bool isLost() const noexcept { return m_bLost; }

    /// The `element` patterns of an element, found from the root down.
    const Patterns& find( const xmlNode* in_pElement );
    /// Those of an element whose parent's patterns are known; those of the grammar's start are a root's.
    const Patterns& find( const Patterns& in_vecParents, const xmlNode* in_pElement );
    /// What a reference refers to; the start of the grammar for none.
    const Patterns& getDefinitions( const xmlNode* in_pRef ) const;

    /// The names of the children that the element must have and hasn't; alternatives as one text.
    std::vector<std::string> findMissingChildren( const xmlNode* in_pElement );

private:
    std::vector<std::string> findMissing( const xmlNode* in_pPattern, const xmlNode* in_pElement );
    std::vector<std::string> findMissingAmong( const xmlNode* in_pPattern, const xmlNode* in_pElement );
    void collectElements( const xmlNode* in_pPattern, std::string_view in_strName,
                          std::set<const xmlNode*>& inout_setSeen, Patterns& out_vecPatterns );

    std::map<std::string, Patterns, std::less<>> m_mapDefinitions;
    std::map<std::pair<Patterns, std::string>, Patterns> m_mapPatterns; // of an element, by those of its parent
    unsigned int m_uDepth = 0;
    unsigned int m_uSteps = 0; // for the element at hand
    bool m_bLost = false;      // once and for all: to lose the way for each element takes too long
};

/// The attribute of a pattern; empty when it has none of that name.
std::string getPatternAttribute( const xmlNode* in_pPattern, const char* in_szName );
bool isPattern( const xmlNode* in_pNode, std::string_view in_strName );

/// Appends what isn't there yet.
template <class T>
void merge( std::vector<T>& inout_vecAll, const std::vector<T>& in_vecMore ) {
    for ( const T& one : in_vecMore ) {
        if ( std::find( inout_vecAll.begin(), inout_vecAll.end(), one ) == inout_vecAll.end() )
            inout_vecAll.push_back( one );
    }
}

} // namespace Velquin::Pstn

#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <libxml/tree.h>

#include <velquin/Logger.h>

namespace Velquin::Pstn {

class AttributeReader;

/// Tells which attribute of an element the schema refuses, and what it would take, or which child it misses: libxml2's
/// validation names only the element, and not always that. Asks the schema's own patterns.
class SchemaAdvisor {
public:
    /// @param in_pSchema a schema in the XML syntax, which outlives this object
    SchemaAdvisor( const xmlDoc* in_pSchema, const Logger& in_logger );

    /// Reports every attribute of the element that is missing, unknown, or has a value that the schema doesn't take.
    /// Says nothing of a schema that refers to itself, or to one definition over and over, beyond measure.
    void adviseOnAttributes( xmlNode* in_pElement );

    /// Reports every child element that is required and absent.
    void adviseOnChildren( xmlNode* in_pElement );

    /// The elements of that name, the first ones of the document, whose attributes the schema refuses.
    std::vector<xmlNode*> findMisfits( xmlNode* in_pRoot, std::string_view in_strName, std::size_t in_uMost );

private:
    /// One step into a pattern. A schema's size says nothing of how many there are: definitions can refer to each
    /// other.
    class Step {
    public:
        explicit Step( SchemaAdvisor& in_advisor );
        Step( const Step& ) = delete;
        Step& operator=( const Step& ) = delete;
        ~Step() { --m_advisor.m_uDepth; }

    private:
        SchemaAdvisor& m_advisor;
    };

    using Patterns = std::vector<const xmlNode*>;

    /// What the schema says of one attribute.
    struct Rule {
        bool bRequired = false;
        bool bAnyValue = false;
        std::vector<std::string> vecValues;
        Patterns vecData; ///< `data` patterns: what takes a value that is not listed

        bool isRequired() const noexcept { return bRequired; }
        bool hasKeywordsOnly() const noexcept { return !bAnyValue && vecData.empty(); }
    };
    using Rules = std::map<std::string, Rule, std::less<>>;

    /// An attribute that is missing, or has a value that the hint replaces.
    struct Fault {
        std::string strAttribute;
        std::string strHint;
    };

    static bool haveAll( const std::vector<Rules>& in_vecRules, const std::string& in_strAttribute,
                         bool ( Rule::*in_has )() const noexcept );
    static std::string getHint( const Rule& in_rule, const char* in_szValue );
    static bool agrees( const AttributeReader& in_reader, const std::string& in_strAttribute, const Rule& in_rule );
    std::vector<Fault> findFaults( const AttributeReader& in_reader, const Patterns& in_vecPatterns );
    void collectMisfits( xmlNode* in_pElement, const Patterns& in_vecParents, std::string_view in_strName,
                         std::size_t in_uMost, std::vector<xmlNode*>& out_vecMisfits );
    std::vector<std::string> findMissing( const xmlNode* in_pPattern, const xmlNode* in_pElement );
    std::vector<std::string> findMissingAmong( const xmlNode* in_pPattern, const xmlNode* in_pElement );
    const Patterns& findPatterns( const xmlNode* in_pElement );
    const Patterns& findPatterns( const Patterns& in_vecParents, const xmlNode* in_pElement );
    void collectElements( const xmlNode* in_pPattern, std::string_view in_strName,
                          std::set<const xmlNode*>& inout_setSeen, Patterns& out_vecPatterns );
    void collectAttributes( const xmlNode* in_pPattern, const AttributeReader& in_reader, bool in_bRequired,
                            Rules& out_rules );
    void collectFrom( const xmlNode* in_pPattern, const AttributeReader& in_reader, bool in_bRequired,
                      Rules& out_rules );
    void collectChoice( const xmlNode* in_pChoice, const AttributeReader& in_reader, bool in_bRequired,
                        Rules& out_rules );
    void collectValues( const xmlNode* in_pPattern, Rule& out_rule );
    const Patterns& getDefinitions( const xmlNode* in_pRef ) const;

    const Logger& m_logger;
    std::map<std::string, Patterns, std::less<>> m_mapDefinitions;
    std::map<std::pair<Patterns, std::string>, Patterns> m_mapPatterns; // of an element, by those of its parent
    unsigned int m_uDepth = 0;
    unsigned int m_uSteps = 0; // for the element at hand
    bool m_bLost = false;      // once and for all: to lose the way for each element takes too long
};

} // namespace Velquin::Pstn

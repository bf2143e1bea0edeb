#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <libxml/tree.h>

#include <velquin/Logger.h>

namespace Velquin::Pstn {

/// Tells which attribute of an element the schema refuses, and what it would take: libxml2's validation names only the
/// element. Asks the schema's own patterns; what they tell by other means than attributes stays untold.
class SchemaAdvisor {
public:
    /// @param in_pSchema a schema in the XML syntax, which outlives this object
    explicit SchemaAdvisor( const xmlDoc* in_pSchema );

    /// Reports every attribute of the element that is missing, unknown, or has a value that the schema doesn't take.
    /// Says nothing of a schema that refers to itself, or to one definition over and over, beyond measure.
    void advise( xmlNode* in_pElement, const Logger& in_logger );

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

    /// What the schema says of one attribute.
    struct Rule {
        bool bRequired = false;
        bool bAnyValue = false; ///< takes more than the listed values
        std::vector<std::string> vecValues;
        std::string strDataType; ///< of a value that is not listed, if one is told
        std::string strPattern;  ///< of a value that is not listed, if one is told
    };
    using Rules = std::map<std::string, Rule, std::less<>>;
    using Patterns = std::vector<const xmlNode*>;

    Patterns findPatterns( const xmlNode* in_pElement );
    void collectElements( const xmlNode* in_pPattern, std::string_view in_strName,
                          std::set<const xmlNode*>& inout_setSeen, Patterns& out_vecPatterns );
    void collectAttributes( const xmlNode* in_pPattern, const xmlNode* in_pElement, bool in_bRequired,
                            Rules& out_rules );
    void collectFrom( const xmlNode* in_pPattern, const xmlNode* in_pElement, bool in_bRequired, Rules& out_rules );
    void collectChoice( const xmlNode* in_pChoice, const xmlNode* in_pElement, bool in_bRequired, Rules& out_rules );
    void collectValues( const xmlNode* in_pPattern, Rule& out_rule );
    const Patterns& getDefinitions( const xmlNode* in_pRef ) const;

    const xmlNode* m_pGrammar;
    std::map<std::string, Patterns, std::less<>> m_mapDefinitions;
    unsigned int m_uDepth = 0;
    unsigned int m_uSteps = 0; // for the element at hand
    bool m_bLost = false;      // once and for all: to lose the way for each element takes too long
};

} // namespace Velquin::Pstn

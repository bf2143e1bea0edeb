#pragma once

#include <map>
#include <string>
#include <vector>

#include "document/SchemaPatterns.h"

namespace Velquin::Pstn {

/// What a schema says of the attributes of one element.
class AttributeRules {
public:
    /// An attribute that is missing or has a wrong value.
    struct Fault {
        std::string strAttribute;
        const char* szRule;
        std::string strHint;   ///< what would be right, as the log says it; empty when the attribute is missing
        std::string strAdvice; ///< the same for people; empty when strHint says it
    };

    /// @param in_vecPatterns the patterns of the element
    AttributeRules( SchemaPatterns& in_patterns, const SchemaPatterns::Patterns& in_vecPatterns,
                    const xmlNode* in_pElement );

    /// What is wrong with the attributes of the element; empty where the schema is too tangled to follow.
    std::vector<Fault> findFaults() const;

    /// The names of all attributes that the element may have.
    std::vector<std::string> getNames() const;

    bool has( const std::string& in_strAttribute ) const { return m_rules.contains( in_strAttribute ); }
    /// Whether the attribute, which the element may have, takes the value.
    bool takes( const std::string& in_strAttribute, const std::string& in_strValue ) const;
    /// What to do with the value of such an attribute that stands in the element, as text or as a child.
    std::string describeValue( const std::string& in_strAttribute, const std::string& in_strValue ) const;

private:
    /// What the schema says of one attribute.
    struct Rule {
        bool bRequired = false;
        bool bAnyValue = false;
        std::string strCondition; ///< with which keyword it is required; empty when it always is
        std::vector<std::string> vecValues;
        SchemaPatterns::Patterns vecData; ///< `data` patterns, which take values that are not listed

        bool isRequired() const noexcept { return bRequired; }
        bool hasKeywordsOnly() const noexcept { return !bAnyValue && vecData.empty(); }
    };
    using RulesByName = std::map<std::string, Rule, std::less<>>;

    static bool haveAll( const std::vector<RulesByName>& in_vecRules, const std::string& in_strAttribute,
                         bool ( Rule::*in_has )() const noexcept );
    static std::string getHint( const Rule& in_rule, const char* in_szValue );
    static std::string getAdvice( const Rule& in_rule, std::string_view in_strValue );
    static std::string getAdviceOnMissing( const Rule& in_rule );
    std::string findCondition( const std::vector<RulesByName>& in_vecAlternatives, const RulesByName& in_meant ) const;
    bool agrees( const std::string& in_strAttribute, const Rule& in_rule ) const;
    void collectAttributes( const xmlNode* in_pPattern, bool in_bRequired, RulesByName& out_rules );
    void collectFrom( const xmlNode* in_pPattern, bool in_bRequired, RulesByName& out_rules );
    void collectChoice( const xmlNode* in_pChoice, bool in_bRequired, RulesByName& out_rules );
    void collectValues( const xmlNode* in_pPattern, Rule& out_rule );

    SchemaPatterns& m_patterns;
    const xmlNode* m_pElement;
    RulesByName m_rules;
    bool m_bKnown = false;
};

} // namespace Velquin::Pstn

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
    void advise( xmlNode* in_pElement, const Logger& in_logger ) const;

private:
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

    Patterns findPatterns( const xmlNode* in_pElement ) const;
    void collectElements( const xmlNode* in_pPattern, std::string_view in_strName,
                          std::set<const xmlNode*>& inout_setSeen, Patterns& out_vecPatterns ) const;
    void collectAttributes( const xmlNode* in_pPattern, const xmlNode* in_pElement, bool in_bRequired,
                            Rules& out_rules ) const;
    void collectFrom( const xmlNode* in_pPattern, const xmlNode* in_pElement, bool in_bRequired,
                      Rules& out_rules ) const;
    void collectChoice( const xmlNode* in_pChoice, const xmlNode* in_pElement, bool in_bRequired,
                        Rules& out_rules ) const;
    void collectValues( const xmlNode* in_pPattern, Rule& out_rule ) const;
    const Patterns& getDefinitions( const xmlNode* in_pRef ) const;

    const xmlNode* m_pGrammar;
    std::map<std::string, Patterns, std::less<>> m_mapDefinitions;
};

} // namespace Velquin::Pstn

#pragma once

#include <map>
#include <set>
#include <string>

#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

/// What was left out: declarations that references may mean, and references that may mean an interface.
class Losses {
public:
    explicit Losses( const SurveyRecord& in_record );

    /// Whether a reference may mean something that was left out.
    bool explainReference( const SurveyedFinding& in_item ) const;

    /// Whether something that was left out in a section may have been meant for an interface.
    bool explainInterface( const xmlNode* in_pInterface, const std::string& in_strSection ) const;

private:
    void addMissing( const SurveyedFinding& in_item );
    void addWrongReference( const SurveyedFinding& in_item );
    void addLostTag( const SurveyedFinding& in_item );
    void addDeclaration( const xmlNode* in_pElement );
    void addReferences( const xmlNode* in_pLost );
    void addReference( const xmlNode* in_pReference );
    std::set<std::string>& getReferences( const xmlNode* in_pElement );

    std::set<const xmlNode*> m_setWithoutIdentifier;
    std::map<std::string, std::set<std::string>> m_mapDeclarations; ///< identifiers, by the rule of their references
    std::map<std::string, std::set<std::string>> m_mapReferences;   ///< "digital 1/2", by section
};

} // namespace Velquin::Pstn

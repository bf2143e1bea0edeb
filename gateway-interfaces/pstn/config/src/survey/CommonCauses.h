#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

/// The physical configurations that are applied to boards and interfaces.
class PhysicalConfigs {
public:
    explicit PhysicalConfigs( const xmlNode* in_pRoot );

    /// Those of a line, in the order of the document; there should be one.
    std::vector<const xmlNode*> find( const xmlNode* in_pReference ) const;

private:
    std::multimap<std::string, const xmlNode*> m_mapConfigs;
};

/// Of which kinds a section has entries: boards, or references to them.
class Kinds {
public:
    Kinds( const xmlNode* in_pRoot, const char* in_szSection );

    /// What all findings about lines of the element's kind have in common when the section has nothing of that kind;
    /// else empty.
    std::string describeAbsence( const xmlNode* in_pElement ) const;

private:
    std::set<std::string> m_setKinds;
};

/// What findings have in common that come from one mistake.
class CommonCauses {
public:
    explicit CommonCauses( const SurveyRecord& in_record );

    /// References to the same thing, or to one of which there is none, lines of one board, lines with one physical
    /// configuration, channels of one reference, the references of a copied list, or those that meet a reference to
    /// their whole board. Empty for a finding of its own.
    std::string find( const SurveyedFinding& in_item ) const;

private:
    void gather( const xmlNode* in_pRoot );
    std::string findUnknown( const SurveyedFinding& in_item ) const;
    std::string findTwice( const SurveyedFinding& in_item ) const;
    const xmlNode* findWholeBoard( const SurveyedFinding& in_item ) const;

    const PhysicalConfigs m_configs;
    const Kinds m_boards;
    const Kinds m_physical;
    const Kinds m_callControl;
    std::set<std::string> m_setBoardsWithLines;
    bool m_bGroups = false;
    std::set<const xmlNode*> m_setCopied; ///< lists of which each reference names lines that stand elsewhere, too
    std::map<std::string, std::vector<const xmlNode*>> m_mapWholeBoards; ///< references without interfaceID
};

} // namespace Velquin::Pstn

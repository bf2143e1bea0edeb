#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <velquin/Logger.h>

#include "document/AttributeRules.h"
#include "document/MeantNames.h"
#include "document/SchemaContent.h"
#include "document/SchemaPatterns.h"

namespace Velquin::Pstn {

/// Says which attribute of an element the schema refuses and what it would take, or which child is missing. It asks the
/// schema's own patterns: libxml2's validation names only the element, and at times not even that.
class SchemaAdvisor {
public:
    /// @param in_pSchema a schema in the XML syntax; it outlives this object
    SchemaAdvisor( const xmlDoc* in_pSchema, const Logger& in_logger );

    /// Reports every attribute of the element that is missing, unknown, or has a value that the schema doesn't take.
    /// Reports nothing for a schema that is too tangled to follow.
    void adviseOnAttributes( xmlNode* in_pElement );

    /// Reports every child element that the schema requires and the element lacks.
    void adviseOnChildren( xmlNode* in_pElement );

    /// Reports whatever is wrong with the attributes of the root and of all elements in it; which children are missing,
    /// unknown, too many, or out of their order; texts between them, and namespaces. An attribute or a child that is
    /// there under a wrong name isn't missing, too. Stops after a thousand elements with faults.
    ///
    /// An element whose name is misspelt then gets the name that is meant, where only one can be: what is in it is
    /// advised on and read like any other.
    void adviseOnDocument( xmlNode* in_pRoot );

    /// The first elements of that name in the document whose attributes the schema refuses.
    /// @param in_uMost how many elements are looked for
    std::vector<xmlNode*> findMisfits( xmlNode* in_pRoot, std::string_view in_strName, std::size_t in_uMost );

private:
    void report( xmlNode* in_pElement, const std::vector<AttributeRules::Fault>& in_vecFaults );
    /// What an advice is about.
    struct Subject {
        xmlNode* pElement;
        const SchemaPatterns::Patterns& vecPatterns;
        const AttributeRules& rules;
        std::vector<std::string> vecNames; ///< of the children that it may have
        std::vector<AttributeRules::Fault> vecFaults;
        std::vector<std::string> vecMissing; ///< children
    };

    void adviseOnTree( xmlNode* in_pElement, const SchemaPatterns::Patterns& in_vecPatterns );
    std::vector<SchemaContent::Child> adviseOnNames( Subject& inout_subject, const SchemaContent& in_content );
    std::string describeMeant( const Subject& in_subject, const xmlNode* in_pChild, const MeantName& in_meant );
    static bool takeAsAttribute( Subject& inout_subject, const xmlNode* in_pChild );
    bool adviseOnNamespaces( xmlNode* in_pElement, const SchemaContent& in_content );
    bool adviseOnText( Subject& inout_subject );
    bool adviseOnOrder( const xmlNode* in_pElement, const std::vector<SchemaContent::Misplaced>& in_vecMisplaced );
    void reportUnexpected( xmlNode* in_pElement, std::string in_strHint, const xmlNode* in_pOther = nullptr,
                           const char* in_szLabel = "" );
    void collectMisfits( xmlNode* in_pElement, const SchemaPatterns::Patterns& in_vecParents,
                         std::string_view in_strName, std::size_t in_uMost, std::vector<xmlNode*>& out_vecMisfits );

    SchemaPatterns m_patterns;
    std::map<SchemaPatterns::Patterns, SchemaContent> m_mapContents; ///< by the patterns of the element
    std::vector<SchemaContent::Child> m_vecRenamed;
    const Logger& m_logger;
    bool m_bNamespaces; ///< whether the schema's elements have one
    unsigned int m_uFaultyElements = 0;
};

} // namespace Velquin::Pstn

#pragma once

#include <span>
#include <string>
#include <vector>

#include "document/AttributeRules.h"
#include "document/SchemaContent.h"
#include "document/SchemaPatterns.h"

namespace Velquin::Pstn {

/// What was meant by a name that doesn't belong where it stands.
struct MeantName {
    std::string strName;  ///< empty when nothing is known; alternatives are one text
    bool bLikely = false; ///< whether the names are near, or what is in the element fits; else it is a guess

    /// What to write instead.
    /// @param in_known all names that may stand there
    std::string describe( const std::string& in_strWritten, std::span<const std::string> in_known ) const;
};

/// An attribute that is missing may be there under a wrong name: then only that is a fault.
void joinFaults( std::span<const std::string> in_known, std::vector<AttributeRules::Fault>& inout_vecFaults );

/// Where a child may be meant for another one.
struct NameScope {
    SchemaPatterns& patterns;
    const SchemaPatterns::Patterns& vecParents; ///< of the parent
    const std::vector<std::string>& vecNames;   ///< that may stand in the parent
};

/// The name of the only child of the parent into which an element would belong that doesn't belong into the parent;
/// empty when there is none.
std::string findHolder( const NameScope& in_scope, const xmlNode* in_pElement );

/// What the children of an element are, by their names and by what is in them.
struct ChildNames {
    struct Wrong {
        xmlNode* pElement;
        MeantName meant;
    };
    std::vector<SchemaContent::Child> vecReadable; ///< those of which the name is known, or what is meant by it
    std::vector<Wrong> vecWrong;                   ///< those that have a wrong name
};

/// An element means another name than its own if its own isn't known, or doesn't fit, and all that is in it fits the
/// other. Else an unknown name means a near one. It doesn't count as readable where it would stand twice, or out of its
/// order, under the name that is meant: it would be read for another one.
/// @param inout_vecMissing the names of missing children: those that are there under a wrong name are taken off
ChildNames nameChildren( const NameScope& in_scope, const SchemaContent& in_content,
                         const std::vector<xmlNode*>& in_vecChildren, std::vector<std::string>& inout_vecMissing );

} // namespace Velquin::Pstn

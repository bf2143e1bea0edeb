#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <velquin/Logger.h>

#include "document/SchemaPatterns.h"

namespace Velquin::Pstn {

/// Tells which attribute of an element the schema refuses, and what it would take, or which child it misses: libxml2's
/// validation names only the element, and not always that. Asks the schema's own patterns.
class SchemaAdvisor {
public:
    /// @param in_pSchema a schema in the XML syntax, which outlives this object
    SchemaAdvisor( const xmlDoc* in_pSchema, const Logger& in_logger )
        : m_patterns( in_pSchema ), m_logger( in_logger ) {}

    /// Reports every attribute of the element that is missing, unknown, or has a value that the schema doesn't take.
    /// Says nothing of a schema that refers to itself, or to one definition over and over, beyond measure.
    void adviseOnAttributes( xmlNode* in_pElement );

    /// Reports every child element that is required and absent.
    void adviseOnChildren( xmlNode* in_pElement );

    /// The elements of that name, the first ones of the document, whose attributes the schema refuses.
    std::vector<xmlNode*> findMisfits( xmlNode* in_pRoot, std::string_view in_strName, std::size_t in_uMost );

private:
    void collectMisfits( xmlNode* in_pElement, const SchemaPatterns::Patterns& in_vecParents,
                         std::string_view in_strName, std::size_t in_uMost, std::vector<xmlNode*>& out_vecMisfits );

    SchemaPatterns m_patterns;
    const Logger& m_logger;
};

} // namespace Velquin::Pstn

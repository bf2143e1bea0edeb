#include "document/SchemaAdvisor.h"

#include <string>

#include "document/AttributeRules.h"
#include "document/Element.h"
#include "reading/ChildElements.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

namespace {

constexpr ReaderWording ATTRIBUTE_WORDING{ "] for element ", "] for element ", "Missing attribute [" };
constexpr ReaderWording CHILD_WORDING{ "] for element ", "", "Missing element [" };

} // namespace

void SchemaAdvisor::adviseOnAttributes( xmlNode* in_pElement ) {
    m_patterns.beginElement();
    const ElementReader reader( in_pElement, m_logger, ATTRIBUTE_WORDING );
    const AttributeRules rules( m_patterns, m_patterns.find( in_pElement ), in_pElement );
    for ( const AttributeRules::Fault& fault : rules.findFaults() ) {
        AttributeText text;
        if ( findAttribute( in_pElement, fault.strAttribute.c_str(), text ) )
            reader.reportInvalid( fault.strAttribute.c_str(), text.view(), fault.strHint );
        else
            reader.reportMissing( fault.strAttribute.c_str() );
    }
}

void SchemaAdvisor::adviseOnChildren( xmlNode* in_pElement ) {
    const ElementReader reader( in_pElement, m_logger, CHILD_WORDING );
    for ( const std::string& strName : m_patterns.findMissingChildren( in_pElement ) )
        reader.reportMissingChild( strName );
}

std::vector<xmlNode*> SchemaAdvisor::findMisfits( xmlNode* in_pRoot, std::string_view in_strName,
                                                  std::size_t in_uMost ) {
    std::vector<xmlNode*> vecMisfits;
    collectMisfits( in_pRoot, m_patterns.getDefinitions( nullptr ), in_strName, in_uMost, vecMisfits );
    return vecMisfits;
}

void SchemaAdvisor::collectMisfits( xmlNode* in_pElement, const SchemaPatterns::Patterns& in_vecParents,
                                    std::string_view in_strName, std::size_t in_uMost,
                                    std::vector<xmlNode*>& out_vecMisfits ) {
    m_patterns.beginElement();
    const SchemaPatterns::Patterns& vecPatterns = m_patterns.find( in_vecParents, in_pElement );
    if ( in_strName == getElementName( in_pElement ) &&
         !AttributeRules( m_patterns, vecPatterns, in_pElement ).findFaults().empty() )
        out_vecMisfits.push_back( in_pElement );
    for ( xmlNode* const pChild : ChildElements( in_pElement ) ) {
        if ( out_vecMisfits.size() >= in_uMost )
            return;
        collectMisfits( pChild, vecPatterns, in_strName, in_uMost, out_vecMisfits );
    }
}

} // namespace Velquin::Pstn

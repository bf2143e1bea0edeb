#include "document/SchemaAdvisor.h"

#include <string>

#include "Suggestion.h"
#include "document/AttributeRules.h"
#include "document/Element.h"
#include "reading/ChildElements.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

namespace {

constexpr ReaderWording ATTRIBUTE_WORDING{ "] for element ", "] for element ", "Missing attribute [" };
constexpr ReaderWording CHILD_WORDING{ "] for element ", "", "Missing element [" };
constexpr unsigned int MAX_FAULTY_ELEMENTS = 1000;

} // namespace

void SchemaAdvisor::adviseOnAttributes( xmlNode* in_pElement ) {
    m_patterns.beginElement();
    adviseOnAttributes( in_pElement, m_patterns.find( in_pElement ) );
}

/// @return whether something is wrong
bool SchemaAdvisor::adviseOnAttributes( xmlNode* in_pElement, const SchemaPatterns::Patterns& in_vecPatterns ) {
    const ElementReader reader( in_pElement, m_logger, ATTRIBUTE_WORDING );
    const AttributeRules rules( m_patterns, in_vecPatterns, in_pElement );
    const std::vector<AttributeRules::Fault> vecFaults = rules.findFaults();
    for ( const AttributeRules::Fault& fault : vecFaults ) {
        const char* const szAttribute = fault.strAttribute.c_str();
        AttributeText text;
        if ( findAttribute( in_pElement, szAttribute, text ) )
            reader.reportInvalid( { szAttribute, nullptr, text.view(), fault.szRule, fault.strAdvice }, fault.strHint );
        else
            reader.reportMissing( szAttribute, fault.strAdvice );
    }
    return !vecFaults.empty();
}

void SchemaAdvisor::adviseOnChildren( xmlNode* in_pElement ) {
    const ElementReader reader( in_pElement, m_logger, CHILD_WORDING );
    for ( const std::string& strName : m_patterns.findMissingChildren( in_pElement ) )
        reader.reportMissingChild( strName );
}

void SchemaAdvisor::adviseOnDocument( xmlNode* in_pRoot ) {
    m_patterns.beginElement();
    const SchemaPatterns::Patterns& vecPatterns = m_patterns.find( in_pRoot );
    if ( !vecPatterns.empty() )
        adviseOnTree( in_pRoot, vecPatterns );
}

void SchemaAdvisor::adviseOnTree( xmlNode* in_pElement, const SchemaPatterns::Patterns& in_vecPatterns ) {
    m_patterns.beginElement();
    const bool bAttributes = adviseOnAttributes( in_pElement, in_vecPatterns );
    std::vector<xmlNode*> vecUnknown;
    for ( xmlNode* const pChild : ChildElements( in_pElement ) ) {
        m_patterns.beginElement();
        const SchemaPatterns::Patterns& vecPatterns = m_patterns.find( in_vecPatterns, pChild );
        if ( m_patterns.isLost() || m_uFaultyElements >= MAX_FAULTY_ELEMENTS )
            break;
        if ( !vecPatterns.empty() ) {
            adviseOnTree( pChild, vecPatterns );
        } else {
            vecUnknown.push_back( pChild );
            ++m_uFaultyElements;
        }
    }
    std::vector<std::string> vecMissing = m_patterns.findMissingChildren( in_pElement );
    m_uFaultyElements += bAttributes || !vecMissing.empty();
    const std::vector<std::string> vecNames = m_patterns.findChildNames( in_vecPatterns );
    for ( xmlNode* const pChild : vecUnknown ) {
        // What is missing may be there under a wrong name.
        const bool bOnlyOne = vecUnknown.size() == 1 && vecMissing.size() == 1;
        const std::string strNearest = bOnlyOne ? vecMissing[0] : findNearest( getElementName( pChild ), vecMissing );
        reportUnknownChild(
            pChild, describeNames( getElementName( pChild ), std::erase( vecMissing, strNearest ) > 0
                                                                 ? std::span<const std::string>( &strNearest, 1 )
                                                                 : vecNames ) );
    }
    const ElementReader reader( in_pElement, m_logger, CHILD_WORDING );
    for ( const std::string& strName : vecMissing )
        reader.reportMissingChild( strName );
}

void SchemaAdvisor::reportUnknownChild( xmlNode* in_pChild, std::string in_strHint ) {
    const AttributeReader reader( in_pChild, m_logger, CHILD_WORDING );
    Finding finding;
    finding.eKind = Finding::Kind::UNKNOWN_ELEMENT;
    finding.strRule = Rules::UNKNOWN_ELEMENT;
    finding.strAttribute = reader.getName();
    finding.strHint = std::move( in_strHint );
    reader.reportDeclared( "Unexpected element [" + getElementPath( in_pChild ) + "]", ".", std::move( finding ) );
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

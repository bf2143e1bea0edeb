#include "document/SchemaAdvisor.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string_view>
#include <utility>

#include "Suggestion.h"
#include "document/Element.h"
#include "document/StrayText.h"
#include "reading/ChildElements.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

namespace {

constexpr ReaderWording ATTRIBUTE_WORDING{ "] for element ", "] for element ", "Missing attribute [" };
constexpr ReaderWording CHILD_WORDING{ "] for element ", "", "Missing element [" };
constexpr unsigned int MAX_FAULTY_ELEMENTS = 1000;
constexpr unsigned int MAX_OF_ONE_KIND = 10; // in one element

/// The beginning of a text, as a message shows it.
std::string shorten( std::string_view in_strText ) {
    constexpr std::size_t MAX_BYTES = 40;
    in_strText.remove_prefix( std::min( in_strText.find_first_not_of( " \t\r\n" ), in_strText.size() ) );
    std::string_view strLine = in_strText.substr( 0, in_strText.find_first_of( "\r\n" ) );
    strLine = strLine.substr( 0, strLine.find_last_not_of( " \t" ) + 1 );
    if ( strLine.size() <= MAX_BYTES )
        return std::string( strLine );
    std::size_t uEnd = MAX_BYTES;
    while ( uEnd > 0 && ( static_cast<unsigned char>( strLine[uEnd] ) & 0xC0 ) == 0x80 )
        --uEnd; // not within a character
    return std::string( strLine.substr( 0, uEnd ) ) + "...";
}

/// The text in an element, as a message shows it.
std::string getText( const xmlNode* in_pElement ) {
    const XmlStringPtr pText( xmlNodeGetContent( in_pElement ) );
    return pText ? shorten( fromXml( pText.get() ) ) : std::string();
}

bool isMissing( const AttributeRules::Fault& in_fault ) {
    return in_fault.szRule == std::string_view( Rules::MISSING_ATTRIBUTE );
}

} // namespace

SchemaAdvisor::SchemaAdvisor( const xmlDoc* in_pSchema, const Logger& in_logger )
    : m_patterns( in_pSchema ),
      m_logger( in_logger ),
      m_bNamespaces( !getPatternAttribute( xmlDocGetRootElement( in_pSchema ), "ns" ).empty() ) {}

void SchemaAdvisor::adviseOnAttributes( xmlNode* in_pElement ) {
    m_patterns.beginElement();
    const AttributeRules rules( m_patterns, m_patterns.find( in_pElement ), in_pElement );
    report( in_pElement, rules.findFaults() );
}

void SchemaAdvisor::report( xmlNode* in_pElement, const std::vector<AttributeRules::Fault>& in_vecFaults ) {
    const ElementReader reader( in_pElement, m_logger, ATTRIBUTE_WORDING );
    for ( const AttributeRules::Fault& fault : in_vecFaults ) {
        const char* const szAttribute = fault.strAttribute.c_str();
        AttributeText text;
        if ( findAttribute( in_pElement, szAttribute, text ) )
            reader.reportInvalid( { szAttribute, nullptr, text.view(), fault.szRule, fault.strAdvice }, fault.strHint );
        else
            reader.reportMissing( szAttribute, fault.strAdvice );
    }
}

void SchemaAdvisor::adviseOnChildren( xmlNode* in_pElement ) {
    const ElementReader reader( in_pElement, m_logger, CHILD_WORDING );
    for ( const std::string& strName : m_patterns.findMissingChildren( in_pElement ) )
        reader.reportMissingChild( strName );
}

void SchemaAdvisor::adviseOnDocument( xmlNode* in_pRoot ) {
    m_patterns.beginElement();
    const SchemaPatterns::Patterns& vecStart = m_patterns.getDefinitions( nullptr );
    const std::vector<std::string> vecNames = m_patterns.findChildNames( vecStart );
    std::string strName = getElementName( in_pRoot );
    if ( m_patterns.find( vecStart, strName ).empty() && !m_patterns.isLost() && !vecNames.empty() ) {
        reportUnexpected( in_pRoot, describeNames( strName, vecNames ) );
        strName = findNearest( strName, vecNames );
        if ( !strName.empty() )
            m_vecRenamed.push_back( { in_pRoot, strName } );
    }
    if ( !strName.empty() && !m_patterns.find( vecStart, strName ).empty() )
        adviseOnTree( in_pRoot, m_patterns.find( vecStart, strName ) );
    for ( const auto& [pElement, strMeant] : m_vecRenamed )
        setElementName( pElement, strMeant );
}

void SchemaAdvisor::adviseOnTree( xmlNode* in_pElement, const SchemaPatterns::Patterns& in_vecPatterns ) {
    m_patterns.beginElement();
    const AttributeRules rules( m_patterns, in_vecPatterns, in_pElement );
    Subject subject{ in_pElement,
                     in_vecPatterns,
                     rules,
                     m_patterns.findChildNames( in_vecPatterns ),
                     rules.findFaults(),
                     m_patterns.findMissingChildren( in_pElement, in_vecPatterns ) };
    joinFaults( rules.getNames(), subject.vecFaults );
    const SchemaContent& content =
        m_mapContents.try_emplace( in_vecPatterns, m_patterns, in_vecPatterns ).first->second;
    const bool bForeign = adviseOnNamespaces( in_pElement, content );
    const bool bText = !content.takesText() && adviseOnText( subject );
    const std::vector<SchemaContent::Child> vecChildren = adviseOnNames( subject, content );
    report( in_pElement, subject.vecFaults );
    const bool bMisplaced = adviseOnOrder( in_pElement, content.findMisplaced( vecChildren ) );
    const ElementReader reader( in_pElement, m_logger, CHILD_WORDING );
    for ( const std::string& strName : subject.vecMissing )
        reader.reportMissingChild( strName );
    m_uFaultyElements += !subject.vecFaults.empty() || !subject.vecMissing.empty() || bForeign || bText || bMisplaced;
    for ( const auto& [pChild, strName] : vecChildren ) {
        m_patterns.beginElement();
        const SchemaPatterns::Patterns& vecPatterns = m_patterns.find( in_vecPatterns, strName );
        if ( m_patterns.isLost() || m_uFaultyElements >= MAX_FAULTY_ELEMENTS )
            break;
        adviseOnTree( pChild, vecPatterns );
    }
}

/// Reports the children whose names don't belong into the element.
/// @return the children of which the names are known, or what is meant by them
std::vector<SchemaContent::Child> SchemaAdvisor::adviseOnNames( Subject& inout_subject,
                                                                const SchemaContent& in_content ) {
    std::vector<xmlNode*> vecChildren;
    for ( xmlNode* const pChild : ChildElements( inout_subject.pElement ) ) {
        m_patterns.beginElement();
        const bool bKnown = !m_patterns.find( inout_subject.vecPatterns, pChild ).empty();
        if ( m_patterns.isLost() || m_uFaultyElements >= MAX_FAULTY_ELEMENTS )
            break;
        if ( !bKnown && takeAsAttribute( inout_subject, pChild ) )
            continue;
        vecChildren.push_back( pChild );
        m_uFaultyElements += !bKnown;
    }
    const ChildNames names = nameChildren( { m_patterns, inout_subject.vecPatterns, inout_subject.vecNames },
                                           in_content, vecChildren, inout_subject.vecMissing );
    for ( const auto& [pChild, meant] : names.vecWrong )
        reportUnexpected( pChild, describeMeant( inout_subject, pChild, meant ) );
    std::copy_if( names.vecReadable.begin(), names.vecReadable.end(), std::back_inserter( m_vecRenamed ),
                  std::mem_fn( &SchemaContent::Child::isRenamed ) );
    return names.vecReadable;
}

/// What to do with a child whose name doesn't belong into the element.
std::string SchemaAdvisor::describeMeant( const Subject& in_subject, const xmlNode* in_pChild,
                                          const MeantName& in_meant ) {
    const std::string strName = getElementName( in_pChild );
    const NameScope scope{ m_patterns, in_subject.vecPatterns, in_subject.vecNames };
    const std::string strHolder = in_meant.bLikely ? std::string() : findHolder( scope, in_pChild );
    if ( !strHolder.empty() )
        return "move it into " + strHolder;
    AttributeText text;
    if ( !in_meant.bLikely && in_subject.rules.has( strName ) &&
         !findAttribute( in_subject.pElement, strName.c_str(), text ) )
        return in_subject.rules.describeValue( strName, getText( in_pChild ) );
    return in_meant.describe( strName, in_subject.vecNames );
}

/// Whether a child is an attribute that is missing.
bool SchemaAdvisor::takeAsAttribute( Subject& inout_subject, const xmlNode* in_pChild ) {
    for ( AttributeRules::Fault& fault : inout_subject.vecFaults ) {
        if ( !isMissing( fault ) || fault.strAttribute != getElementName( in_pChild ) )
            continue;
        fault.strAdvice = inout_subject.rules.describeValue( fault.strAttribute, getText( in_pChild ) );
        return true;
    }
    return false;
}

/// Reports attributes with a prefix, and names in a namespace, where that begins.
/// @return whether there are any
bool SchemaAdvisor::adviseOnNamespaces( xmlNode* in_pElement, const SchemaContent& in_content ) {
    const AttributeReader reader( in_pElement, m_logger, ATTRIBUTE_WORDING );
    const auto reportAttribute = [&reader]( const std::string& in_strName, std::string_view in_strValue ) {
        reader.reportInvalid( { in_strName.c_str(), nullptr, in_strValue, Rules::UNKNOWN_ATTRIBUTE, "remove it" },
                              "The element has no such attribute." );
    };
    const xmlNode* const pParent = getParentElement( in_pElement );
    const xmlNs* const pNamespace = m_bNamespaces ? nullptr : in_pElement->ns;
    bool bFound = false;
    if ( pNamespace && ( !pParent || pParent->ns != pNamespace ) ) {
        if ( pNamespace->prefix )
            reportUnexpected( in_pElement, "write its name without prefix" );
        else
            reportAttribute( "xmlns", fromXml( pNamespace->href ) );
        bFound = true;
    }
    unsigned int uAttributes = 0;
    for ( const xmlAttr* p = in_pElement->properties;
          p && !in_content.takesPrefixedAttributes() && uAttributes < MAX_OF_ONE_KIND; p = p->next ) {
        if ( !p->ns || !p->ns->prefix )
            continue;
        const XmlStringPtr pValue( xmlNodeListGetString( in_pElement->doc, p->children, 1 ) );
        reportAttribute( std::string( fromXml( p->ns->prefix ) ) + ":" + fromXml( p->name ), fromXml( pValue.get() ) );
        ++uAttributes;
    }
    return bFound || uAttributes > 0;
}

/// Reports texts between the children. One may be the tag of a missing child, and one in an element that takes no
/// children the only missing attribute.
/// @return whether there are any
bool SchemaAdvisor::adviseOnText( Subject& inout_subject ) {
    const AttributeReader reader( inout_subject.pElement, m_logger, CHILD_WORDING );
    const auto& vecNames = inout_subject.vecNames;
    auto& vecFaults = inout_subject.vecFaults;
    unsigned int uTexts = 0;
    for ( xmlNode* p = inout_subject.pElement->children; p && uTexts < MAX_OF_ONE_KIND; p = p->next ) {
        if ( ( p->type != XML_TEXT_NODE && p->type != XML_CDATA_SECTION_NODE ) || xmlIsBlankNode( p ) != 0 )
            continue;
        ++uTexts;
        Finding finding;
        finding.strRule = Rules::UNEXPECTED_TEXT;
        finding.strValue = shorten( fromXml( p->content ) );
        if ( vecNames.empty() && vecFaults.size() == 1 && isMissing( vecFaults[0] ) &&
             inout_subject.rules.takes( vecFaults[0].strAttribute, finding.strValue ) ) {
            vecFaults[0].strAdvice = inout_subject.rules.describeValue( vecFaults[0].strAttribute, finding.strValue );
            continue;
        }
        StrayText stray = explainStrayText( fromXml( p->content ), vecNames, inout_subject.vecMissing );
        std::erase( inout_subject.vecMissing, stray.strChild );
        finding.strAttribute = std::move( stray.strChild );
        finding.strHint = std::move( stray.strHint );
        const std::string strSubject = "Text \"" + finding.strValue + "\" in element " + reader.getName();
        reader.reportDeclared( strSubject, ".", std::move( finding ) );
    }
    return uTexts > 0;
}

/// @return whether there are any
bool SchemaAdvisor::adviseOnOrder( const xmlNode* in_pElement,
                                   const std::vector<SchemaContent::Misplaced>& in_vecMisplaced ) {
    for ( const auto& [pChild, pOther, eReason] : in_vecMisplaced ) {
        const std::string strOther = getElementName( pOther );
        switch ( eReason ) {
        case SchemaContent::Reason::TWICE:
            reportUnexpected( pChild,
                              std::string( "only one may stand in " ) + getElementName( in_pElement ) +
                                  "; remove one of them",
                              pOther, "first here" );
            break;
        case SchemaContent::Reason::EXCLUDED:
            reportUnexpected( pChild, strOther + " excludes it; remove one of them", pOther, "the other one here" );
            break;
        case SchemaContent::Reason::BELONGS_FORWARD:
            reportUnexpected( pChild, "move it in front of " + strOther, pOther, "in front of this" );
            break;
        case SchemaContent::Reason::BELONGS_BEHIND:
            reportUnexpected( pChild, "move it behind " + strOther, pOther, "behind this" );
            break;
        }
    }
    return !in_vecMisplaced.empty();
}

/// @param in_pOther another place that belongs to it; null for none
void SchemaAdvisor::reportUnexpected( xmlNode* in_pElement, std::string in_strHint, const xmlNode* in_pOther,
                                      const char* in_szLabel ) {
    const AttributeReader reader( in_pElement, m_logger, CHILD_WORDING );
    Finding finding;
    finding.eKind = Finding::Kind::UNKNOWN_ELEMENT;
    finding.strRule = Rules::UNKNOWN_ELEMENT;
    finding.strAttribute = reader.getName();
    finding.strHint = std::move( in_strHint );
    if ( in_pOther )
        finding.vecRelated.push_back( { in_szLabel, getElementFile( in_pOther ), getElementLine( in_pOther ),
                                        getElementNumber( in_pOther ), "" } );
    reader.reportDeclared( "Unexpected element [" + getElementPath( in_pElement ) + "]", ".", std::move( finding ) );
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

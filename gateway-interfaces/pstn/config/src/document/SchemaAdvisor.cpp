#include "document/SchemaAdvisor.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "Suggestion.h"
#include "document/Element.h"
#include "reading/ChildElements.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

namespace {

constexpr ReaderWording ATTRIBUTE_WORDING{ "] for element ", "] for element ", "Missing attribute [" };
constexpr ReaderWording CHILD_WORDING{ "] for element ", "", "Missing element [" };
constexpr unsigned int MAX_FAULTY_ELEMENTS = 1000;
constexpr unsigned int MAX_OF_ONE_KIND = 10; // in one element

/// For each unknown name the one that is meant: the nearest of the missing ones, which it is taken off; the nearest of
/// all; or the missing one that is left when one is left of each. Empty for the rest.
std::vector<std::string> matchNames( const std::vector<std::string>& in_vecUnknown,
                                     std::span<const std::string> in_known,
                                     std::vector<std::string>& inout_vecMissing ) {
    std::vector<std::string> vecMeant;
    for ( const std::string& strName : in_vecUnknown ) {
        const std::string strMissing = findNearest( strName, inout_vecMissing );
        const std::string& strMeant =
            vecMeant.emplace_back( strMissing.empty() ? findNearest( strName, in_known ) : strMissing );
        std::erase_if( inout_vecMissing, [&strMeant]( const std::string& in_strAlternatives ) {
            return !strMeant.empty() && isAmong( strMeant, in_strAlternatives );
        } );
    }
    if ( inout_vecMissing.size() == 1 && std::count( vecMeant.begin(), vecMeant.end(), "" ) == 1 ) {
        *std::find( vecMeant.begin(), vecMeant.end(), "" ) = inout_vecMissing[0];
        inout_vecMissing.clear();
    }
    return vecMeant;
}

/// An attribute that is missing may be there under a wrong name: then only that is a fault.
void joinFaults( std::span<const std::string> in_known, std::vector<AttributeRules::Fault>& inout_vecFaults ) {
    const auto getNames = [&inout_vecFaults]( std::string_view in_strRule ) {
        std::vector<std::string> vecNames;
        for ( const AttributeRules::Fault& fault : inout_vecFaults ) {
            if ( in_strRule == fault.szRule )
                vecNames.push_back( fault.strAttribute );
        }
        return vecNames;
    };
    std::vector<std::string> vecMissing = getNames( Rules::MISSING_ATTRIBUTE );
    const std::vector<std::string> vecMeant = matchNames( getNames( Rules::UNKNOWN_ATTRIBUTE ), in_known, vecMissing );
    std::erase_if( inout_vecFaults, [&vecMissing]( const AttributeRules::Fault& in_fault ) {
        return in_fault.szRule == std::string_view( Rules::MISSING_ATTRIBUTE ) &&
               std::find( vecMissing.begin(), vecMissing.end(), in_fault.strAttribute ) == vecMissing.end();
    } );
    auto itMeant = vecMeant.begin();
    for ( AttributeRules::Fault& fault : inout_vecFaults ) {
        if ( fault.szRule != std::string_view( Rules::UNKNOWN_ATTRIBUTE ) )
            continue;
        if ( !itMeant->empty() )
            fault.strAdvice = describeNames( fault.strAttribute, std::span( &*itMeant, 1 ) );
        ++itMeant;
    }
}

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
    const SchemaPatterns::Patterns& vecPatterns = m_patterns.find( in_pRoot );
    if ( !vecPatterns.empty() ) {
        adviseOnTree( in_pRoot, vecPatterns );
        return;
    }
    const std::vector<std::string> vecNames = m_patterns.findChildNames( m_patterns.getDefinitions( nullptr ) );
    if ( !m_patterns.isLost() && !vecNames.empty() )
        reportUnexpected( in_pRoot, describeNames( getElementName( in_pRoot ), vecNames ) );
}

void SchemaAdvisor::adviseOnTree( xmlNode* in_pElement, const SchemaPatterns::Patterns& in_vecPatterns ) {
    m_patterns.beginElement();
    const AttributeRules rules( m_patterns, in_vecPatterns, in_pElement );
    std::vector<AttributeRules::Fault> vecFaults = rules.findFaults();
    joinFaults( rules.getNames(), vecFaults );
    report( in_pElement, vecFaults );
    std::vector<xmlNode*> vecKnown;
    std::vector<xmlNode*> vecUnknown;
    for ( xmlNode* const pChild : ChildElements( in_pElement ) ) {
        m_patterns.beginElement();
        const SchemaPatterns::Patterns& vecPatterns = m_patterns.find( in_vecPatterns, pChild );
        if ( m_patterns.isLost() || m_uFaultyElements >= MAX_FAULTY_ELEMENTS )
            break;
        if ( !vecPatterns.empty() ) {
            adviseOnTree( pChild, vecPatterns );
            vecKnown.push_back( pChild );
        } else {
            vecUnknown.push_back( pChild );
            ++m_uFaultyElements;
        }
    }
    std::vector<std::string> vecMissing = m_patterns.findMissingChildren( in_pElement );
    m_patterns.beginElement();
    const std::vector<std::string> vecNames = m_patterns.findChildNames( in_vecPatterns );
    const SchemaContent& content =
        m_mapContents.try_emplace( in_vecPatterns, m_patterns, in_vecPatterns ).first->second;
    const bool bForeign = adviseOnNamespaces( in_pElement, content );
    const bool bText = !content.takesText() && adviseOnText( in_pElement, vecNames, vecMissing );
    const bool bMisplaced = adviseOnOrder( in_pElement, content.findMisplaced( std::move( vecKnown ) ) );
    m_uFaultyElements += !vecFaults.empty() || !vecMissing.empty() || bForeign || bText || bMisplaced;
    std::vector<std::string> vecUnknownNames;
    vecUnknownNames.reserve( vecUnknown.size() );
    for ( const xmlNode* const pChild : vecUnknown )
        vecUnknownNames.emplace_back( getElementName( pChild ) );
    const std::vector<std::string> vecMeant = matchNames( vecUnknownNames, vecNames, vecMissing );
    for ( std::size_t u = 0; u < vecUnknown.size(); ++u )
        reportUnexpected( vecUnknown[u],
                          describeNames( vecUnknownNames[u],
                                         vecMeant[u].empty() ? std::span( vecNames ) : std::span( &vecMeant[u], 1 ) ) );
    const ElementReader reader( in_pElement, m_logger, CHILD_WORDING );
    for ( const std::string& strName : vecMissing )
        reader.reportMissingChild( strName );
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

/// Reports texts between the children. One that lost its `<` may be a missing child.
/// @return whether there are any
bool SchemaAdvisor::adviseOnText( xmlNode* in_pElement, const std::vector<std::string>& in_vecNames,
                                  std::vector<std::string>& inout_vecMissing ) {
    const AttributeReader reader( in_pElement, m_logger, CHILD_WORDING );
    unsigned int uTexts = 0;
    for ( xmlNode* p = in_pElement->children; p && uTexts < MAX_OF_ONE_KIND; p = p->next ) {
        if ( ( p->type != XML_TEXT_NODE && p->type != XML_CDATA_SECTION_NODE ) || xmlIsBlankNode( p ) != 0 )
            continue;
        ++uTexts;
        Finding finding;
        finding.strRule = Rules::UNEXPECTED_TEXT;
        finding.strValue = shorten( fromXml( p->content ) );
        finding.strHint = "remove it: this format has attributes and elements only";
        const std::string strWord = finding.strValue.substr( 0, finding.strValue.find_first_of( " \t=" ) );
        if ( std::find( in_vecNames.begin(), in_vecNames.end(), strWord ) != in_vecNames.end() ) {
            finding.strHint = "a < is missing in front of " + strWord;
            std::erase( inout_vecMissing, strWord );
        }
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

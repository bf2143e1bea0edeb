#include "survey/Echoes.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "RuleNames.h"
#include "document/Element.h"
#include "reading/ChildElements.h"
#include "survey/Elements.h"
#include "survey/ReferenceKeys.h"

namespace Velquin::Pstn {

namespace {

bool isMain( const SurveyedFinding& in_item ) {
    return !in_item.finding.bEcho && !in_item.finding.strRule.empty();
}

bool isAboutDChannel( const SurveyedFinding& in_item ) {
    return in_item.is( Rules::NO_D_CHANNEL ) || in_item.is( Rules::UNUSED_D_CHANNEL );
}

/// Whether advice on one element explains an error of libxml2 about another.
bool explains( const xmlNode* in_pAdvised, const xmlNode* in_pBlamed ) {
    if ( isWithin( in_pAdvised, in_pBlamed ) || isWithin( in_pBlamed, in_pAdvised ) )
        return true;
    // libxml2 may give up at a sibling. At a section that would say nothing.
    const xmlNode* const pParent = getParentElement( in_pBlamed );
    return pParent && getParentElement( pParent ) && isWithin( in_pAdvised, pParent );
}

/// libxml2 says which element it refuses, and the advice why.
void markExplainedErrors( SurveyRecord& inout_record ) {
    std::vector<const xmlNode*> vecAdvised;
    for ( const SurveyedFinding& item : inout_record.vecFindings ) {
        if ( isMain( item ) && !item.is( Rules::AGAINST_SCHEMA ) && !item.is( Rules::INTERNAL ) && item.pElement )
            vecAdvised.push_back( item.pElement );
    }
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( item.is( Rules::AGAINST_SCHEMA ) || item.is( Rules::INTERNAL ) )
            item.finding.bEcho = !vecAdvised.empty() &&
                                 ( !item.pElement || std::any_of( vecAdvised.begin(), vecAdvised.end(),
                                                                  [&item]( const xmlNode* in_pAdvised ) {
                                                                      return explains( in_pAdvised, item.pElement );
                                                                  } ) );
    }
}

/// A reader finds again what the schema's advice has found, and misses what is only misspelt.
void markSecondReports( SurveyRecord& inout_record ) {
    std::set<std::tuple<const xmlNode*, std::string>> setSeen;
    for ( const SurveyedFinding& item : inout_record.vecFindings ) {
        const Finding& finding = item.finding;
        const std::size_t uName = finding.strHint.find( '"' ); // did you mean "name"?
        if ( !isMain( item ) || !item.pElement || uName == std::string::npos )
            continue;
        const std::string strMeant = finding.strHint.substr( uName + 1, finding.strHint.rfind( '"' ) - uName - 1 );
        if ( finding.eKind == Finding::Kind::UNKNOWN_ATTRIBUTE )
            setSeen.emplace( item.pElement, strMeant );
        else if ( finding.eKind == Finding::Kind::UNKNOWN_ELEMENT )
            setSeen.emplace( getParentElement( item.pElement ), strMeant );
    }
    std::set<const xmlNode*> setWithoutChild;
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( !isMain( item ) || !item.pElement || item.finding.strAttribute.empty() )
            continue;
        const bool bSeen = !setSeen.emplace( item.pElement, item.finding.strAttribute ).second;
        // A reader may miss the attribute of a child that is missing.
        item.finding.bEcho =
            bSeen || ( item.is( Rules::MISSING_ATTRIBUTE ) && setWithoutChild.contains( item.pElement ) );
        if ( item.is( Rules::MISSING_ELEMENT ) )
            setWithoutChild.insert( item.pElement );
    }
}

/// The physical configurations that are applied to boards and interfaces.
class PhysicalConfigs {
public:
    explicit PhysicalConfigs( const xmlNode* in_pRoot ) {
        for ( const xmlNode* const pSection : ChildElements( in_pRoot, "physicalInterfaceConfigs" ) ) {
            for ( const xmlNode* const pElement : getTree( pSection ) ) {
                if ( isReference( pElement ) )
                    m_mapConfigs.emplace( describeReference( pElement ), getChain( pElement )[1] );
            }
        }
    }

    /// The configuration of a line; null when it has none.
    const xmlNode* find( const xmlNode* in_pReference ) const {
        auto it = m_mapConfigs.find( describeReference( in_pReference ) );
        if ( it == m_mapConfigs.end() )
            it = m_mapConfigs.find( describeLine( in_pReference, getValue( in_pReference, "boardID" ), {} ) );
        return it == m_mapConfigs.end() ? nullptr : it->second;
    }

private:
    std::map<std::string, const xmlNode*> m_mapConfigs;
};

/// What findings have in common that come from one mistake: references to the same thing, lines of one board, lines
/// with one physical configuration. Empty for a finding of its own.
std::string getCommonCause( const SurveyedFinding& in_item, const PhysicalConfigs& in_configs ) {
    if ( isReferenceRule( in_item ) )
        return describeKind( in_item.pElement ) + describeTarget( in_item );
    if ( in_item.is( Rules::NO_PHYSICAL_CONFIG ) || in_item.is( Rules::NO_CALL_CONTROL ) )
        return std::to_string( getElementNumber( getParentElement( in_item.pElement ) ) );
    const xmlNode* const pConfig = isAboutDChannel( in_item ) ? in_configs.find( in_item.pElement ) : nullptr;
    return pConfig ? std::to_string( getElementNumber( pConfig ) ) : std::string();
}

/// Findings that come from one mistake: the first one names the places of the others.
void markCommonCauses( SurveyRecord& inout_record ) {
    constexpr std::size_t MAX_RELATED = 20;
    const PhysicalConfigs configs( inout_record.pRoot );
    std::map<std::tuple<std::string, std::string>, Finding*> mapFirst;
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        Finding& finding = item.finding;
        if ( !isMain( item ) || !item.pElement )
            continue;
        const std::string strCause = getCommonCause( item, configs );
        if ( strCause.empty() )
            continue;
        const auto [it, bFirst] = mapFirst.try_emplace( { finding.strRule, strCause }, &finding );
        if ( bFirst )
            continue;
        finding.bEcho = true;
        std::vector<Finding::Related>& vecRelated = it->second->vecRelated;
        if ( vecRelated.size() < MAX_RELATED )
            vecRelated.push_back(
                { "the same here", finding.strFile, finding.ullLine, finding.ullElement, finding.strAttribute } );
    }
}

/// What was left out: declarations that references may mean, and references that may mean an interface.
class Losses {
public:
    explicit Losses( const SurveyRecord& in_record ) {
        std::set<const xmlNode*> setWithoutIdentifier;
        for ( const SurveyedFinding& item : in_record.vecFindings ) {
            if ( item.finding.strRule.empty() || !item.pElement )
                continue;
            const std::string& strAttribute = item.finding.strAttribute;
            if ( strAttribute == "ID" )
                setWithoutIdentifier.insert( item.pElement );
            addMissing( item );
            const bool bTwice = item.is( Rules::PHYSICAL_CONFIG_TWICE ) || item.is( Rules::NFAS_MEMBER_TWICE );
            if ( isReference( item.pElement ) &&
                 ( bTwice || strAttribute == "boardID" || strAttribute == "interfaceID" ) )
                m_mapReferences[getElementName( getChain( item.pElement )[0] )].insert( ANY );
        }
        for ( const xmlNode* const pLost : in_record.vecLost ) {
            for ( const xmlNode* const pElement : getTree( pLost ) )
                addDeclaration( pElement, setWithoutIdentifier.contains( pElement ) );
            addReferences( pLost );
        }
    }

    /// Whether a reference may mean something that was left out.
    bool explainReference( const SurveyedFinding& in_item ) const {
        const auto it = m_mapDeclarations.find( in_item.finding.strRule );
        return it != m_mapDeclarations.end() &&
               ( it->second.contains( ANY ) || it->second.contains( describeTarget( in_item ) ) );
    }

    /// Whether something that was left out in a section may have been meant for an interface.
    bool explainInterface( const xmlNode* in_pInterface, const std::string& in_strSection ) const {
        const auto it = m_mapReferences.find( in_strSection );
        const xmlNode* const pBoard = getParentElement( in_pInterface );
        if ( it == m_mapReferences.end() || !pBoard )
            return false;
        const std::string strBoard = getValue( pBoard, "ID" );
        return it->second.contains( ANY ) || it->second.contains( describeLine( in_pInterface, strBoard, {} ) ) ||
               it->second.contains( describeLine( in_pInterface, strBoard, getValue( in_pInterface, "ID" ) ) );
    }

private:
    static constexpr const char* ANY = "*";

    /// A section that is missing, misspelt, or lacks what its reader needs may have meant any line.
    void addMissing( const SurveyedFinding& in_item ) {
        const auto vecChain = getChain( in_item.pElement );
        if ( in_item.is( Rules::MISSING_ELEMENT ) && vecChain.size() < 2 )
            m_mapReferences[vecChain.empty() ? in_item.finding.strAttribute : getElementName( vecChain[0] )].insert(
                ANY );
        if ( in_item.is( Rules::UNKNOWN_ELEMENT ) && vecChain.size() == 1 ) {
            m_mapReferences["physicalInterfaceConfigs"].insert( ANY );
            m_mapReferences["callControl"].insert( ANY );
        }
    }

    void addDeclaration( const xmlNode* in_pElement, bool in_bWithoutIdentifier ) {
        if ( const char* const szRule = getReferenceRule( in_pElement ) )
            m_mapDeclarations[szRule].insert( in_bWithoutIdentifier ? ANY : describeDeclaration( in_pElement ) );
    }

    /// The references in something that was left out. A range belongs to the reference in which it stands.
    void addReferences( const xmlNode* in_pLost ) {
        const auto vecChain = getChain( in_pLost );
        if ( const auto it = std::find_if( vecChain.begin(), vecChain.end(), &isReference ); it != vecChain.end() ) {
            addReference( *it );
            return;
        }
        bool bAny = true;
        for ( const xmlNode* const pElement : getTree( in_pLost ) ) {
            if ( !isReference( pElement ) )
                continue;
            addReference( pElement );
            bAny = false;
        }
        if ( bAny && !vecChain.empty() )
            m_mapReferences[getElementName( vecChain[0] )].insert( ANY );
    }

    void addReference( const xmlNode* in_pReference ) {
        m_mapReferences[getElementName( getChain( in_pReference )[0] )].insert( describeReference( in_pReference ) );
    }

    std::map<std::string, std::set<std::string>> m_mapDeclarations; ///< identifiers, by the rule of their references
    std::map<std::string, std::set<std::string>> m_mapReferences;   ///< "digital 1/2", by section
};

/// References to what was left out, and interfaces that such a reference was meant for
void markConsequences( SurveyRecord& inout_record ) {
    const Losses losses( inout_record );
    const PhysicalConfigs configs( inout_record.pRoot );
    std::set<const xmlNode*> setFaultyConfigs;
    for ( const SurveyedFinding& item : inout_record.vecFindings ) {
        if ( isMain( item ) && item.pElement && getChain( item.pElement ).size() > 1 )
            setFaultyConfigs.insert( getChain( item.pElement )[1] );
    }
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( !isMain( item ) || !item.pElement )
            continue;
        if ( isReferenceRule( item ) )
            item.finding.bEcho = losses.explainReference( item );
        else if ( item.is( Rules::NO_PHYSICAL_CONFIG ) ) // a reference says it again
            item.finding.bEcho =
                isReference( item.pElement ) || losses.explainInterface( item.pElement, "physicalInterfaceConfigs" );
        else if ( isAboutDChannel( item ) )
            item.finding.bEcho = setFaultyConfigs.contains( configs.find( item.pElement ) );
        else if ( item.is( Rules::NO_CALL_CONTROL ) )
            item.finding.bEcho = losses.explainInterface( item.pElement, "callControl" );
    }
}

} // namespace

void markEchoes( SurveyRecord& inout_record ) {
    markExplainedErrors( inout_record );
    markSecondReports( inout_record );
    markConsequences( inout_record );
    markCommonCauses( inout_record );
}

} // namespace Velquin::Pstn

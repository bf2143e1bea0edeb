#include "survey/Echoes.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "RuleNames.h"
#include "document/Element.h"
#include "reading/Number.h"
#include "survey/Elements.h"

namespace Velquin::Pstn {

namespace {

bool isMain( const SurveyedFinding& in_item ) {
    return !in_item.finding.bEcho && !in_item.finding.strRule.empty();
}

bool isReferenceRule( const SurveyedFinding& in_item ) {
    return in_item.is( Rules::UNKNOWN_BOARD ) || in_item.is( Rules::UNKNOWN_INTERFACE ) ||
           in_item.is( Rules::UNKNOWN_CHANNEL_GROUP );
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
        if ( isMain( item ) && !item.is( Rules::AGAINST_SCHEMA ) && item.pElement )
            vecAdvised.push_back( item.pElement );
    }
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( item.is( Rules::AGAINST_SCHEMA ) )
            item.finding.bEcho = !vecAdvised.empty() &&
                                 ( !item.pElement || std::any_of( vecAdvised.begin(), vecAdvised.end(),
                                                                  [&item]( const xmlNode* in_pAdvised ) {
                                                                      return explains( in_pAdvised, item.pElement );
                                                                  } ) );
    }
}

/// A reader finds what the schema's advice has found, and references repeat what another one says.
void markRepetitions( SurveyRecord& inout_record ) {
    std::set<std::tuple<const xmlNode*, std::string>> setSeen;
    std::map<std::tuple<std::string, std::string, std::string, bool>, SurveyedFinding*> mapReferences;
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        Finding& finding = item.finding;
        if ( !isMain( item ) || !item.pElement || item.is( Rules::AGAINST_SCHEMA ) )
            continue;
        if ( !finding.strAttribute.empty() && !setSeen.emplace( item.pElement, finding.strAttribute ).second ) {
            finding.bEcho = true;
            continue;
        }
        if ( !isReferenceRule( item ) )
            continue;
        const std::string strBoard =
            item.is( Rules::UNKNOWN_INTERFACE ) ? getValue( item.pElement, "boardID" ) : std::string();
        const auto [it, bFirst] = mapReferences.try_emplace(
            { finding.strRule, finding.strValue, strBoard, isAnalog( item.pElement ) }, &item );
        if ( bFirst )
            continue;
        finding.bEcho = true;
        Finding& first = it->second->finding;
        if ( first.vecRelated.size() < 5 )
            first.vecRelated.push_back(
                { "named here, too", finding.strFile, finding.ullLine, finding.ullElement, finding.strAttribute } );
    }
}

/// The rule of references that name nothing, for an element that stands where a board, an interface or a channel group
/// is declared; else null.
const char* getReferenceRule( const xmlNode* in_pElement ) {
    const auto vecChain = getChain( in_pElement );
    if ( vecChain.size() != 2 && vecChain.size() != 3 )
        return nullptr;
    const std::string_view strSection = getElementName( vecChain[0] ); // may be misspelt
    if ( strSection == "physicalInterfaceConfigs" || strSection == "providers" )
        return nullptr;
    if ( strSection == "callControl" )
        return vecChain.size() == 3 ? Rules::UNKNOWN_CHANNEL_GROUP : nullptr;
    return vecChain.size() == 2 ? Rules::UNKNOWN_BOARD : Rules::UNKNOWN_INTERFACE;
}

/// What was left out: declarations that references may mean, and references that may mean an interface.
class Losses {
public:
    explicit Losses( const SurveyRecord& in_record ) {
        std::set<const xmlNode*> setWithoutIdentifier;
        for ( const SurveyedFinding& item : in_record.vecFindings ) {
            if ( !isMain( item ) || !item.pElement )
                continue;
            const std::string& strAttribute = item.finding.strAttribute;
            if ( strAttribute == "ID" )
                setWithoutIdentifier.insert( item.pElement );
            if ( isReference( item.pElement ) )
                addReference( item.pElement, strAttribute == "boardID" || strAttribute == "interfaceID" );
        }
        for ( const xmlNode* const pLost : in_record.vecLost ) {
            for ( const xmlNode* const pElement : getTree( pLost ) )
                addDeclaration( pElement, setWithoutIdentifier.contains( pElement ) );
            addReferences( pLost );
        }
    }

    /// Whether a reference may mean something that was left out.
    bool explainReference( const Finding& in_finding ) const {
        const auto it = m_mapDeclarations.find( in_finding.strRule );
        return it != m_mapDeclarations.end() &&
               ( it->second.contains( ANY ) || it->second.contains( normalize( in_finding.strValue ) ) );
    }

    /// Whether something that was left out in a section may have been meant for an interface.
    bool explainInterface( const xmlNode* in_pInterface, const std::string& in_strSection ) const {
        const auto it = m_mapReferences.find( in_strSection );
        const xmlNode* const pBoard = getParentElement( in_pInterface );
        if ( it == m_mapReferences.end() || !pBoard )
            return false;
        const std::string strBoard = describeBoard( in_pInterface, getValue( pBoard, "ID" ) );
        return it->second.contains( ANY ) || it->second.contains( strBoard ) ||
               it->second.contains( strBoard + '/' + normalize( getValue( in_pInterface, "ID" ) ) );
    }

private:
    static constexpr const char* ANY = "*";

    static std::string normalize( const std::string& in_strIdentifier ) {
        const auto uNumber = parseNumber<unsigned int>( in_strIdentifier, NumberPolicy::WHOLE );
        return uNumber ? std::to_string( *uNumber ) : "=" + in_strIdentifier;
    }

    static std::string describeBoard( const xmlNode* in_pElement, const std::string& in_strId ) {
        return ( isAnalog( in_pElement ) ? "analog " : "digital " ) + normalize( in_strId );
    }

    void addDeclaration( const xmlNode* in_pElement, bool in_bWithoutIdentifier ) {
        if ( const char* const szRule = getReferenceRule( in_pElement ) )
            m_mapDeclarations[szRule].insert( in_bWithoutIdentifier ? ANY
                                                                    : normalize( getValue( in_pElement, "ID" ) ) );
    }

    /// The references in something that was left out. A range belongs to the reference in which it stands.
    void addReferences( const xmlNode* in_pLost ) {
        const auto vecChain = getChain( in_pLost );
        if ( const auto it = std::find_if( vecChain.begin(), vecChain.end(), &isReference ); it != vecChain.end() ) {
            addReference( *it, false );
            return;
        }
        bool bAny = true;
        for ( const xmlNode* const pElement : getTree( in_pLost ) ) {
            if ( !isReference( pElement ) )
                continue;
            addReference( pElement, false );
            bAny = false;
        }
        if ( bAny && !vecChain.empty() )
            m_mapReferences[getElementName( vecChain[0] )].insert( ANY );
    }

    /// @param in_bUnclear whether it names nothing that is there
    void addReference( const xmlNode* in_pReference, bool in_bUnclear ) {
        const std::string strInterface = getValue( in_pReference, "interfaceID" );
        const std::string strBoard = describeBoard( in_pReference, getValue( in_pReference, "boardID" ) );
        m_mapReferences[getElementName( getChain( in_pReference )[0] )].insert(
            in_bUnclear            ? ANY
            : strInterface.empty() ? strBoard
                                   : strBoard + '/' + normalize( strInterface ) );
    }

    std::map<std::string, std::set<std::string>> m_mapDeclarations; ///< identifiers, by the rule of their references
    std::map<std::string, std::set<std::string>> m_mapReferences;   ///< "digital 1/2", by section
};

/// References to what was left out, and interfaces that such a reference was meant for
void markConsequences( SurveyRecord& inout_record ) {
    const Losses losses( inout_record );
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( !isMain( item ) || !item.pElement )
            continue;
        if ( isReferenceRule( item ) )
            item.finding.bEcho = losses.explainReference( item.finding );
        else if ( item.is( Rules::NO_PHYSICAL_CONFIG ) )
            item.finding.bEcho = losses.explainInterface( item.pElement, "physicalInterfaceConfigs" );
        else if ( item.is( Rules::NO_CALL_CONTROL ) )
            item.finding.bEcho = losses.explainInterface( item.pElement, "callControl" );
    }
}

} // namespace

void markEchoes( SurveyRecord& inout_record ) {
    markExplainedErrors( inout_record );
    markRepetitions( inout_record );
    markConsequences( inout_record );
}

} // namespace Velquin::Pstn

#include "survey/Echoes.h"

#include <algorithm>
#include <climits>
#include <map>
#include <set>
#include <tuple>

#include "RuleNames.h"
#include "document/Element.h"
#include "document/SchemaPatterns.h"
#include "reading/ChildElements.h"
#include "survey/CommonCauses.h"
#include "survey/Elements.h"
#include "survey/Losses.h"
#include "survey/ReferenceKeys.h"

namespace Velquin::Pstn {

namespace {

/// Whether advice explains an error of libxml2 about an element.
bool explains( const SurveyedFinding& in_advice, const xmlNode* in_pBlamed ) {
    const xmlNode* const pAdvised = in_advice.pElement;
    if ( isWithin( pAdvised, in_pBlamed ) || isWithin( in_pBlamed, pAdvised ) )
        return true;
    // libxml2 may give up at a sibling. At a section that says nothing, unless one of them is in a wrong place.
    const xmlNode* const pParent = getParentElement( in_pBlamed );
    return pParent && ( getParentElement( pParent ) || in_advice.is( Rules::UNKNOWN_ELEMENT ) ) &&
           isWithin( pAdvised, pParent );
}

/// libxml2 says which element it refuses, and the advice why.
void markExplainedErrors( SurveyRecord& inout_record ) {
    std::vector<const SurveyedFinding*> vecAdvice;
    for ( const SurveyedFinding& item : inout_record.vecFindings ) {
        if ( item.isMain() && !item.is( Rules::AGAINST_SCHEMA ) && !item.is( Rules::INTERNAL ) && item.pElement )
            vecAdvice.push_back( &item );
    }
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( item.is( Rules::AGAINST_SCHEMA ) || item.is( Rules::INTERNAL ) )
            item.finding.bEcho = !vecAdvice.empty() &&
                                 ( !item.pElement || std::any_of( vecAdvice.begin(), vecAdvice.end(),
                                                                  [&item]( const SurveyedFinding* in_pAdvice ) {
                                                                      return explains( *in_pAdvice, item.pElement );
                                                                  } ) );
    }
}

/// The name that the finding's hint suggests; empty when it suggests none.
std::string getMeant( const Finding& in_finding ) {
    const std::size_t uName = in_finding.strHint.find( '"' ); // did you mean "name"? expected "name" or "other"
    if ( uName == std::string::npos )
        return {};
    std::string strMeant = in_finding.strHint.substr( uName, in_finding.strHint.rfind( '"' ) - uName );
    std::erase( strMeant, '"' );
    return strMeant;
}

/// With a wrong value, a reader asks for other attributes.
void markMisreadings( SurveyRecord& inout_record ) {
    std::set<const xmlNode*> setWrongValues;
    for ( const SurveyedFinding& item : inout_record.vecFindings ) {
        if ( item.isMain() && item.pElement && !item.bOfReader && item.is( Rules::INVALID_VALUE ) )
            setWrongValues.insert( item.pElement );
    }
    for ( SurveyedFinding& item : inout_record.vecFindings )
        item.finding.bEcho = item.finding.bEcho || ( item.bOfReader && item.is( Rules::MISSING_ATTRIBUTE ) &&
                                                     setWrongValues.contains( item.pElement ) );
}

/// A reader finds again what the schema's advice has found, and misses what is only misspelt.
void markSecondReports( SurveyRecord& inout_record ) {
    std::set<std::tuple<const xmlNode*, std::string>> setSeen;
    bool bOtherKind = false; // a file of another kind misses everything
    for ( const SurveyedFinding& item : inout_record.vecFindings ) {
        const Finding& finding = item.finding;
        if ( !item.isMain() || !item.pElement )
            continue;
        if ( item.pElement == inout_record.pRoot && item.is( Rules::UNKNOWN_ELEMENT ) )
            bOtherKind = !finding.strHint.starts_with( "did you mean" );
        if ( finding.eKind == Finding::Kind::UNKNOWN_ATTRIBUTE )
            setSeen.emplace( item.pElement, getMeant( finding ) );
        else if ( finding.eKind == Finding::Kind::UNKNOWN_ELEMENT )
            setSeen.emplace( getParentElement( item.pElement ), getMeant( finding ) );
        else if ( item.is( Rules::UNEXPECTED_TEXT ) && !finding.strAttribute.empty() ) // the tag of a child
            setSeen.emplace( item.pElement, finding.strAttribute );
    }
    const auto hasAlternative = [&setSeen]( const SurveyedFinding& in_item ) {
        auto it = setSeen.lower_bound( { in_item.pElement, {} } );
        while ( it != setSeen.end() && std::get<0>( *it ) == in_item.pElement &&
                !isAmong( std::get<1>( *it ), in_item.finding.strAttribute ) )
            ++it;
        return it != setSeen.end() && std::get<0>( *it ) == in_item.pElement;
    };
    std::set<const xmlNode*> setWithoutChild;
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( !item.isMain() || !item.pElement || item.finding.strAttribute.empty() ||
             item.is( Rules::UNEXPECTED_TEXT ) )
            continue;
        const bool bSeen = ( item.is( Rules::MISSING_ELEMENT ) && hasAlternative( item ) ) ||
                           !setSeen.emplace( item.pElement, item.finding.strAttribute ).second;
        // A reader may miss the attribute of a child that is missing.
        item.finding.bEcho = bSeen ||
                             ( item.is( Rules::MISSING_ATTRIBUTE ) && setWithoutChild.contains( item.pElement ) ) ||
                             ( item.is( Rules::MISSING_ELEMENT ) && item.pElement == inout_record.pRoot && bOtherKind );
        if ( item.is( Rules::MISSING_ELEMENT ) )
            setWithoutChild.insert( item.pElement );
    }
}

/// A child that is missing may stand elsewhere: the nearest of its name that doesn't belong where it stands.
void markMovedElements( SurveyRecord& inout_record ) {
    std::vector<SurveyedFinding*> vecUnexpected;
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( item.isMain() && item.pElement && item.is( Rules::UNKNOWN_ELEMENT ) )
            vecUnexpected.push_back( &item );
    }
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( vecUnexpected.empty() || !item.isMain() || !item.pElement || !item.is( Rules::MISSING_ELEMENT ) )
            continue;
        const auto getDistance = [&item]( const SurveyedFinding* in_pUnexpected ) {
            const Finding& finding = in_pUnexpected->finding;
            if ( !isAmong( finding.strAttribute, item.finding.strAttribute ) )
                return ULLONG_MAX;
            return std::max( finding.ullElement, item.finding.ullElement ) -
                   std::min( finding.ullElement, item.finding.ullElement );
        };
        const auto it = std::min_element( vecUnexpected.begin(), vecUnexpected.end(),
                                          [&getDistance]( const auto* in_pX, const auto* in_pY ) {
                                              return getDistance( in_pX ) < getDistance( in_pY );
                                          } );
        if ( getDistance( *it ) == ULLONG_MAX )
            continue;
        Finding& finding = ( *it )->finding;
        finding.strHint = "move it into " + std::string( getElementName( item.pElement ) );
        finding.vecRelated = {
            { "it is missing here", item.finding.strFile, item.finding.ullLine, item.finding.ullElement, "" } };
        item.finding.bEcho = true;
        vecUnexpected.erase( it );
    }
}

/// A member that has the span of another one, or of another group, is measured by the D-channel of that span. Where
/// all that name a span are refused, its D-channel is the mistake.
void markSpansTwice( SurveyRecord& inout_record ) {
    std::map<const xmlNode*, SurveyedFinding*> mapRefused; // by their references
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( item.pElement && isAboutDChannel( item ) && isReference( item.pElement ) )
            mapRefused.try_emplace( item.pElement, &item );
    }
    if ( mapRefused.empty() )
        return;
    std::set<std::string> setTaken;
    std::map<const xmlNode*, std::multiset<std::string>> mapSpans; // by their lists
    for ( const xmlNode* const pElement : getTree( getChain( mapRefused.begin()->first )[1] ) ) {
        if ( !isReference( pElement ) )
            continue;
        mapSpans[getParentElement( pElement )].insert( describeReference( pElement ) );
        if ( !mapRefused.contains( pElement ) )
            setTaken.insert( describeReference( pElement ) );
    }
    for ( const auto& [pReference, pItem] : mapRefused ) {
        const std::string strSpan = describeReference( pReference );
        if ( isNamed( pReference, "member" ) && mapSpans[getParentElement( pReference )].count( strSpan ) > 1 )
            pItem->finding.strRule = Rules::NFAS_MEMBER_TWICE;
        else if ( setTaken.contains( strSpan ) ||
                  setTaken.contains( describeLine( pReference, getValue( pReference, "boardID" ), {} ) ) )
            pItem->finding.strRule = SPAN_IN_TWO_ISDN_GROUPS;
    }
}

/// Findings that come from one mistake: the first one names the places of the others.
void markCommonCauses( SurveyRecord& inout_record ) {
    constexpr std::size_t MAX_RELATED = 20;
    const CommonCauses causes( inout_record );
    std::map<std::tuple<std::string, std::string>, Finding*> mapFirst;
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        Finding& finding = item.finding;
        if ( !item.isMain() || !item.pElement )
            continue;
        const std::string strCause = causes.find( item );
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

/// References to what was left out, interfaces that such a reference was meant for, and what stands in a copy
void markConsequences( SurveyRecord& inout_record ) {
    const Losses losses( inout_record );
    const PhysicalConfigs configs( inout_record.pRoot );
    std::set<const xmlNode*> setFaultyConfigs;
    std::set<const xmlNode*> setCopies;
    std::set<const xmlNode*> setSurplus;
    for ( const SurveyedFinding& item : inout_record.vecFindings ) {
        if ( !item.isMain() || !item.pElement )
            continue;
        if ( const auto vecChain = getChain( item.pElement ); vecChain.size() > 1 )
            setFaultyConfigs.insert( vecChain[1] );
        if ( item.is( Rules::IDENTIFIER_TWICE ) || item.is( Rules::NFAS_MEMBER_TWICE ) )
            setCopies.insert( item.pElement );
        else if ( item.is( Rules::UNKNOWN_ELEMENT ) && !item.finding.vecRelated.empty() &&
                  item.finding.vecRelated[0].strLabel == "first here" )
            setSurplus.insert( item.pElement );
    }
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( !item.isMain() || !item.pElement )
            continue;
        if ( isReferenceRule( item ) ) {
            item.finding.bEcho = losses.explainReference( item );
        } else if ( item.is( Rules::NO_PHYSICAL_CONFIG ) ) { // a reference says it again
            item.finding.bEcho =
                isReference( item.pElement ) || losses.explainInterface( item.pElement, "physicalInterfaceConfigs" );
        } else if ( isAboutDChannel( item ) ) {
            const auto vecConfigs = configs.find( item.pElement );
            item.finding.bEcho = std::any_of( vecConfigs.begin(), vecConfigs.end(), [&]( const xmlNode* in_pConfig ) {
                return setFaultyConfigs.contains( in_pConfig );
            } );
        } else if ( item.is( Rules::NO_CALL_CONTROL ) ) {
            item.finding.bEcho = losses.explainInterface( item.pElement, "callControl" );
        } else if ( item.finding.strRule.ends_with( "-twice" ) ) {
            const auto vecChain = getChain( item.pElement );
            item.finding.bEcho = std::any_of( vecChain.begin(), vecChain.end(), [&]( const xmlNode* in_pOuter ) {
                return setSurplus.contains( in_pOuter ) ||
                       ( in_pOuter != item.pElement && setCopies.contains( in_pOuter ) );
            } );
        }
    }
}

} // namespace

void markEchoes( SurveyRecord& inout_record ) {
    markExplainedErrors( inout_record );
    markSpansTwice( inout_record );
    markMisreadings( inout_record );
    markSecondReports( inout_record );
    markMovedElements( inout_record );
    markConsequences( inout_record );
    markCommonCauses( inout_record );
}

} // namespace Velquin::Pstn

#include "survey/SurveyAdvice.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "RuleNames.h"
#include "advice/Advice.h"
#include "document/Element.h"
#include "survey/Elements.h"

namespace Velquin::Pstn {

namespace {

/// Whether something that could not be read may fill any channel group.
bool mayFillGroups( const SurveyedFinding& in_item ) {
    if ( !in_item.isMain() )
        return false;
    if ( in_item.is( Rules::NO_CALL_CONTROL ) )
        return true;
    const auto vecChain = getChain( in_item.pElement );
    const bool bCallControl = vecChain.empty() || isNamed( vecChain[0], "callControl" );
    return ( bCallControl && ( in_item.is( Rules::MISSING_ELEMENT ) || in_item.is( Rules::UNEXPECTED_TEXT ) ) ) ||
           ( in_item.is( Rules::MISSING_ATTRIBUTE ) && in_item.finding.strAttribute == "channelGroupID" ) ||
           ( in_item.is( Rules::UNKNOWN_ELEMENT ) && ( bCallControl || vecChain.size() == 1 ) );
}

/// Decides which advice is worth to be told beside the findings of the load.
class Filter {
public:
    explicit Filter( SurveyRecord& inout_record ) : m_pRoot( inout_record.pRoot ) {
        for ( SurveyedFinding& item : inout_record.vecFindings ) {
            const Finding& finding = item.finding;
            if ( !finding.strAttribute.empty() )
                m_setRefused.emplace( finding.ullElement, finding.strAttribute );
            if ( !item.pElement )
                continue;
            m_bGroupsMayBeFilled = m_bGroupsMayBeFilled || mayFillGroups( item );
            if ( item.isMain() && item.is( Rules::NO_CALL_CONTROL ) )
                m_vecWithoutCallControl.push_back( &item );
            if ( item.is( Rules::PHYSICAL_CONFIG_TWICE ) )
                m_setCopies.insert( getElementNumber( getChain( item.pElement )[1] ) );
            if ( !item.is( Rules::CHANNEL_TWICE ) )
                continue;
            m_setCopies.insert( getElementNumber( getReference( item.pElement ) ) );
            if ( !item.isMain() )
                continue;
            m_mapTwice.emplace( finding.ullElement, &item );
            if ( !finding.vecRelated.empty() )
                m_mapTwice.emplace( finding.vecRelated[0].ullElement, &item );
        }
    }

    /// @param inout_advice an error from now on if it explains why the file doesn't load
    bool take( Finding& inout_advice ) {
        if ( m_setRefused.contains( { inout_advice.ullElement, inout_advice.strAttribute } ) )
            return false; // it needs no advice on its value
        if ( inout_advice.strRule == "group-empty" )
            return !m_bGroupsMayBeFilled;
        if ( inout_advice.strRule == "d-channel-in-range" )
            return !m_mapTwice.contains( inout_advice.ullElement ); // the range is longer than it was meant to be
        if ( isAboutLineTwice( inout_advice ) && takeLineFrom( inout_advice ) )
            inout_advice.nLevel = Logger::ERROR_LEVEL;
        if ( inout_advice.strRule != "channel-outside-line" )
            return !m_setCopies.contains( inout_advice.ullElement );
        for ( auto [it, itEnd] = m_mapTwice.equal_range( inout_advice.ullElement ); it != itEnd; ++it ) {
            it->second->finding.bEcho = true;
            inout_advice.nLevel = Logger::ERROR_LEVEL;
        }
        return true;
    }

private:
    /// Whether the advice is about a reference to a line that has call control elsewhere.
    static bool isAboutLineTwice( const Finding& in_advice ) {
        return in_advice.strRule == "span-in-two-isdn-groups" || in_advice.strRule == "port-in-two-configs" ||
               ( in_advice.strRule == "port-type" && in_advice.vecRelated.size() > 1 );
    }

    /// Such a reference may have been meant for the line that nobody names: one of the same board, or of the same
    /// number. Without a number it may have been meant for all lines of any board.
    bool takeLineFrom( const Finding& in_advice ) {
        if ( m_vecElements.empty() && !m_vecWithoutCallControl.empty() )
            m_vecElements = getTree( m_pRoot );
        for ( SurveyedFinding* const pItem : m_vecWithoutCallControl ) {
            const xmlNode* const pLine = pItem->pElement;
            const xmlNode* const pReference = m_vecElements[in_advice.ullElement - 1];
            const bool bMeant =
                getValue( pReference, "interfaceID" ).empty() ||
                ( pItem->finding.vecRelated.empty() &&
                  ( getNumber( pReference, "boardID" ) == getNumber( getParentElement( pLine ), "ID" ) ||
                    getNumber( pReference, "interfaceID" ) == getNumber( pLine, "ID" ) ) );
            if ( pItem->finding.bEcho || !bMeant || isAnalog( pLine ) != isAnalog( pReference ) )
                continue;
            pItem->finding.bEcho = true;
            return true;
        }
        return false;
    }

    const xmlNode* m_pRoot;
    std::vector<const xmlNode*> m_vecElements;                         ///< by their numbers, from the first on
    std::vector<SurveyedFinding*> m_vecWithoutCallControl;             ///< each about one line
    std::set<std::pair<unsigned long long, std::string>> m_setRefused; ///< attributes, by their elements
    std::multimap<unsigned long long, SurveyedFinding*> m_mapTwice;    ///< by the ranges that share a channel
    std::set<unsigned long long> m_setCopies; ///< configurations and references that take lines of others
    bool m_bGroupsMayBeFilled = false;
};

} // namespace

void addAdvice( const Config& in_config, SurveyRecord& inout_record ) {
    Filter filter( inout_record );
    std::vector<SurveyedFinding> vecTaken; // the filter refers to the others
    for ( Finding& advice : advise( in_config, inout_record.pRoot, inout_record.vecFaulty ) ) {
        if ( filter.take( advice ) )
            vecTaken.push_back( { std::move( advice ) } );
    }
    std::move( vecTaken.begin(), vecTaken.end(), std::back_inserter( inout_record.vecFindings ) );
}

} // namespace Velquin::Pstn

#include "survey/SurveyAdvice.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "RuleNames.h"
#include "advice/Advice.h"
#include "document/Element.h"
#include "survey/Elements.h"
#include "survey/ReferenceKeys.h"

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
                m_vecWithoutCallControl.push_back( { &item, getNumber( getParentElement( item.pElement ), "ID" ),
                                                     getNumber( item.pElement, "ID" ), isAnalog( item.pElement ) } );
            if ( item.is( Rules::PHYSICAL_CONFIG_TWICE ) ) {
                m_setCopies.insert( getElementNumber( getChain( item.pElement )[1] ) );
                m_setBoardsTwice.insert( describeLine( item.pElement, getValue( item.pElement, "boardID" ), {} ) );
                m_setLinesTwice.insert( describeReference( item.pElement ) );
            }
            if ( item.is( SPAN_IN_TWO_ISDN_GROUPS ) )
                m_setLinesTwice.insert( describeReference( item.pElement ) );
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

    /// Learns which lines are named twice. Call it with all advice first.
    void look( const Finding& in_advice ) {
        if ( isAboutLineTwice( in_advice ) )
            m_setLinesTwice.insert( describeReference( getElement( in_advice.ullElement ) ) );
    }

    /// @param inout_advice an error from now on if it explains why the file doesn't load
    bool take( Finding& inout_advice ) {
        if ( m_setRefused.contains( { inout_advice.ullElement, inout_advice.strAttribute } ) )
            return false; // it needs no advice on its value
        if ( inout_advice.strRule == "group-empty" )
            return !m_bGroupsMayBeFilled;
        if ( isAboutLineTwice( inout_advice ) ) {
            if ( takeLineFrom( inout_advice ) )
                inout_advice.nLevel = Logger::ERROR_LEVEL;
        } else if ( isOnLineTwice( inout_advice.ullElement ) ||
                    std::any_of( inout_advice.vecRelated.begin(), inout_advice.vecRelated.end(),
                                 [this]( const auto& in_related ) { return isOnLineTwice( in_related.ullElement ); } ) )
            return false; // one of the two is not meant for this line
        if ( inout_advice.strRule == "d-channel-in-range" )
            return !m_mapTwice.contains( inout_advice.ullElement ); // the range is longer than it was meant to be
        if ( inout_advice.strRule == "clock-reference" && !m_setBoardsTwice.empty() ) {
            const xmlNode* const pBoard = getElement( inout_advice.ullElement );
            return !m_setBoardsTwice.contains( describeLine( pBoard, getValue( pBoard, "ID" ), {} ) );
        }
        if ( inout_advice.strRule != "channel-outside-line" )
            return !m_setCopies.contains( inout_advice.ullElement );
        for ( auto [it, itEnd] = m_mapTwice.equal_range( inout_advice.ullElement ); it != itEnd; ++it ) {
            it->second->finding.bEcho = true;
            inout_advice.nLevel = Logger::ERROR_LEVEL;
        }
        return true;
    }

private:
    struct LineWithoutCallControl {
        SurveyedFinding* pItem;
        std::optional<unsigned int> uBoard;
        std::optional<unsigned int> uLine;
        bool bAnalog;
    };

    /// Whether the advice is about a reference to a line that has call control elsewhere.
    static bool isAboutLineTwice( const Finding& in_advice ) {
        return in_advice.strRule == SPAN_IN_TWO_ISDN_GROUPS || in_advice.strRule == "port-in-two-configs" ||
               ( in_advice.strRule == "port-type" && in_advice.vecRelated.size() > 1 );
    }

    /// Such a reference may have been meant for the line that nobody names: one of the same board, of the same number,
    /// or with the two exchanged. Without a number it may have been meant for all lines of any board.
    bool takeLineFrom( const Finding& in_advice ) {
        const xmlNode* const pReference = getElement( in_advice.ullElement );
        const auto uBoard = getNumber( pReference, "boardID" );
        const auto uLine = getNumber( pReference, "interfaceID" );
        const bool bAnalog = isAnalog( pReference );
        const auto it = std::find_if( m_vecWithoutCallControl.begin(), m_vecWithoutCallControl.end(),
                                      [&]( const LineWithoutCallControl& in_line ) {
                                          const Finding& finding = in_line.pItem->finding;
                                          const bool bMeant =
                                              !uLine || ( finding.vecRelated.empty() &&
                                                          ( uBoard == in_line.uBoard || uLine == in_line.uLine ||
                                                            ( uBoard == in_line.uLine && uLine == in_line.uBoard ) ) );
                                          return !finding.bEcho && bMeant && bAnalog == in_line.bAnalog;
                                      } );
        if ( it == m_vecWithoutCallControl.end() )
            return false;
        it->pItem->finding.bEcho = true;
        return true;
    }

    /// Whether the element is, or stands in, a reference to a line that is named twice.
    bool isOnLineTwice( unsigned long long in_ullElement ) {
        if ( m_setLinesTwice.empty() || in_ullElement == 0 )
            return false;
        const xmlNode* const pReference = getReference( getElement( in_ullElement ) );
        return pReference && isReference( pReference ) &&
               ( m_setLinesTwice.contains( describeReference( pReference ) ) ||
                 m_setLinesTwice.contains( describeLine( pReference, getValue( pReference, "boardID" ), {} ) ) );
    }

    const xmlNode* getElement( unsigned long long in_ullElement ) {
        if ( m_vecElements.empty() )
            m_vecElements = getTree( m_pRoot );
        return m_vecElements[in_ullElement - 1];
    }

    const xmlNode* m_pRoot;
    std::vector<const xmlNode*> m_vecElements; ///< by their numbers, from the first on
    std::vector<LineWithoutCallControl> m_vecWithoutCallControl;
    std::set<std::pair<unsigned long long, std::string>> m_setRefused; ///< attributes, by their elements
    std::multimap<unsigned long long, SurveyedFinding*> m_mapTwice;    ///< by the ranges that share a channel
    std::set<unsigned long long> m_setCopies; ///< configurations and references that take lines of others
    std::set<std::string> m_setLinesTwice;    ///< those with two configurations, or in two groups
    std::set<std::string> m_setBoardsTwice;   ///< those with a line that has two configurations, of which one is wrong
    bool m_bGroupsMayBeFilled = false;
};

} // namespace

void addAdvice( const Config& in_config, SurveyRecord& inout_record ) {
    Filter filter( inout_record );
    std::vector<SurveyedFinding> vecTaken; // the filter refers to the others
    std::vector<Finding> vecAdvice = advise( in_config, inout_record.pRoot, inout_record.vecFaulty );
    for ( const Finding& advice : vecAdvice )
        filter.look( advice );
    for ( Finding& advice : vecAdvice ) {
        if ( inout_record.vecFindings.size() + vecTaken.size() == SurveyRecord::MAX_FINDINGS )
            break;
        if ( filter.take( advice ) )
            vecTaken.push_back( { std::move( advice ) } );
    }
    std::move( vecTaken.begin(), vecTaken.end(), std::back_inserter( inout_record.vecFindings ) );
}

} // namespace Velquin::Pstn

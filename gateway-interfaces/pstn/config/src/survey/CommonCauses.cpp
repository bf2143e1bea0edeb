#include "survey/CommonCauses.h"

#include <algorithm>

#include "RuleNames.h"
#include "document/Element.h"
#include "reading/ChildElements.h"
#include "survey/Elements.h"
#include "survey/ReferenceKeys.h"

namespace Velquin::Pstn {

namespace {

bool isAboutLineTwice( const SurveyedFinding& in_item ) {
    return in_item.is( Rules::CHANNEL_TWICE ) || in_item.is( Rules::PHYSICAL_CONFIG_TWICE );
}

std::string describeNumber( const xmlNode* in_pElement ) {
    return std::to_string( getElementNumber( in_pElement ) );
}

constexpr std::size_t MAX_CONFIGS = 10;     // of a line, which has one
constexpr std::size_t MAX_WHOLE_BOARDS = 3; // one reference names a board as a whole, if any does

/// The section of a reference, and its board.
std::string describeInSection( const xmlNode* in_pReference ) {
    return getElementName( getChain( in_pReference )[0] ) +
           describeLine( in_pReference, getValue( in_pReference, "boardID" ), {} );
}

std::size_t countChildren( const xmlNode* in_pElement ) {
    std::size_t uChildren = 0;
    for ( [[maybe_unused]] const xmlNode* const pChild : ChildElements( in_pElement ) )
        ++uChildren;
    return uChildren;
}

} // namespace

PhysicalConfigs::PhysicalConfigs( const xmlNode* in_pRoot ) {
    for ( const xmlNode* const pSection : ChildElements( in_pRoot, "physicalInterfaceConfigs" ) ) {
        for ( const xmlNode* const pElement : getTree( pSection ) ) {
            if ( !isReference( pElement ) )
                continue;
            const std::string strLine = describeReference( pElement );
            if ( m_mapConfigs.count( strLine ) < MAX_CONFIGS )
                m_mapConfigs.emplace( strLine, getChain( pElement )[1] );
        }
    }
}

std::vector<const xmlNode*> PhysicalConfigs::find( const xmlNode* in_pReference ) const {
    std::vector<const xmlNode*> vecConfigs;
    for ( const std::string& strLine : { describeReference( in_pReference ),
                                         describeLine( in_pReference, getValue( in_pReference, "boardID" ), {} ) } ) {
        for ( auto [it, itEnd] = m_mapConfigs.equal_range( strLine ); it != itEnd; ++it )
            vecConfigs.push_back( it->second );
    }
    return vecConfigs;
}

Kinds::Kinds( const xmlNode* in_pRoot, const char* in_szSection ) {
    for ( const xmlNode* const pSection : ChildElements( in_pRoot, in_szSection ) ) {
        for ( const xmlNode* const pElement : getTree( pSection ) ) {
            if ( m_setKinds.size() < 2 &&
                 ( isReference( pElement ) || isNamed( getParentElement( pElement ), "boards" ) ) )
                m_setKinds.insert( describeKind( pElement ) );
        }
    }
}

std::string Kinds::describeAbsence( const xmlNode* in_pElement ) const {
    const std::string strKind = describeKind( in_pElement );
    return m_setKinds.empty() ? ANY : m_setKinds.contains( strKind ) ? std::string() : strKind;
}

CommonCauses::CommonCauses( const SurveyRecord& in_record )
    : m_configs( in_record.pRoot ),
      m_boards( in_record.pRoot, "boards" ),
      m_physical( in_record.pRoot, "physicalInterfaceConfigs" ),
      m_callControl( in_record.pRoot, "callControl" ) {
    gather( in_record.pRoot );
    std::map<const xmlNode*, std::set<const xmlNode*>> mapTwice;
    for ( const SurveyedFinding& item : in_record.vecFindings ) {
        if ( !item.isMain() || !item.pElement || !isAboutLineTwice( item ) )
            continue;
        const xmlNode* const pReference = getReference( item.pElement );
        mapTwice[getParentElement( pReference )].insert( pReference );
    }
    for ( const auto& [pList, setReferences] : mapTwice ) {
        if ( setReferences.size() > 1 && setReferences.size() == countChildren( pList ) )
            m_setCopied.insert( pList );
    }
}

std::string CommonCauses::find( const SurveyedFinding& in_item ) const {
    const xmlNode* const pElement = in_item.pElement;
    std::string strCause;
    if ( in_item.is( Rules::UNKNOWN_BOARD ) )
        strCause = m_boards.describeAbsence( pElement );
    else if ( in_item.is( Rules::NO_PHYSICAL_CONFIG ) )
        strCause = m_physical.describeAbsence( pElement );
    else if ( in_item.is( Rules::NO_CALL_CONTROL ) )
        strCause = m_callControl.describeAbsence( pElement );
    if ( !strCause.empty() )
        return strCause;
    if ( isReferenceRule( in_item ) )
        return findUnknown( in_item );
    if ( in_item.is( Rules::NO_PHYSICAL_CONFIG ) || in_item.is( Rules::NO_CALL_CONTROL ) )
        return describeNumber( getParentElement( pElement ) );
    if ( isAboutLineTwice( in_item ) )
        return findTwice( in_item );
    if ( !isAboutDChannel( in_item ) )
        return {};
    const auto vecConfigs = m_configs.find( pElement );
    return vecConfigs.empty() ? std::string() : describeNumber( vecConfigs.front() );
}

/// The cause of references to the same thing, or to anything of which there is none.
std::string CommonCauses::findUnknown( const SurveyedFinding& in_item ) const {
    const xmlNode* const pElement = in_item.pElement;
    if ( in_item.is( Rules::UNKNOWN_CHANNEL_GROUP ) ) // lines of both kinds name the same groups
        return m_bGroups ? describeTarget( in_item ) : ANY;
    if ( in_item.is( Rules::UNKNOWN_INTERFACE ) ) {
        std::string strBoard = describeLine( pElement, getNamedBoard( in_item ), {} );
        if ( !m_setBoardsWithLines.contains( strBoard ) )
            return strBoard;
    }
    return describeKind( pElement ) + describeTarget( in_item );
}

void CommonCauses::gather( const xmlNode* in_pRoot ) {
    for ( const xmlNode* const pElement : getTree( in_pRoot ) ) {
        const std::string_view strRule = getReferenceRule( pElement );
        m_bGroups = m_bGroups || strRule == Rules::UNKNOWN_CHANNEL_GROUP;
        if ( strRule == Rules::UNKNOWN_INTERFACE )
            m_setBoardsWithLines.insert( describeLine( pElement, getValue( getParentElement( pElement ), "ID" ), {} ) );
        if ( !isReference( pElement ) || !getValue( pElement, "interfaceID" ).empty() )
            continue;
        std::vector<const xmlNode*>& vecReferences = m_mapWholeBoards[describeInSection( pElement )];
        if ( vecReferences.size() < MAX_WHOLE_BOARDS )
            vecReferences.push_back( pElement );
    }
}

std::string CommonCauses::findTwice( const SurveyedFinding& in_item ) const {
    const xmlNode* const pReference = getReference( in_item.pElement );
    if ( sharesChannelWithin( in_item.pElement ) )
        return describeNumber( pReference ) + " within";
    if ( const xmlNode* const pWholeBoard = findWholeBoard( in_item ) )
        return describeNumber( pWholeBoard ) + " whole board";
    const xmlNode* const pList = getParentElement( pReference );
    return describeNumber( m_setCopied.contains( pList ) ? pList : pReference );
}

/// The reference to a whole board that a reference is, or that a reference to one of its interfaces meets.
const xmlNode* CommonCauses::findWholeBoard( const SurveyedFinding& in_item ) const {
    const xmlNode* const pReference = getReference( in_item.pElement );
    const auto it = m_mapWholeBoards.find( describeInSection( pReference ) );
    if ( it == m_mapWholeBoards.end() )
        return nullptr;
    if ( getValue( pReference, "interfaceID" ).empty() )
        return m_setCopied.contains( getParentElement( pReference ) ) ? nullptr : pReference;
    const auto itMet = std::find_if( it->second.begin(), it->second.end(), [&in_item]( const xmlNode* in_pOther ) {
        return in_item.is( Rules::PHYSICAL_CONFIG_TWICE ) || shareChannel( in_item.pElement, in_pOther ) ||
               sharesChannelWith( in_item.pElement, in_pOther );
    } );
    return itMet == it->second.end() ? nullptr : *itMet;
}

} // namespace Velquin::Pstn

#include "survey/Losses.h"

#include <algorithm>

#include "RuleNames.h"
#include "document/Element.h"
#include "reading/ChildElements.h"
#include "survey/Elements.h"
#include "survey/ReferenceKeys.h"

namespace Velquin::Pstn {

namespace {

/// Whether it is a reference, also where it isn't read.
bool namesLine( const xmlNode* in_pElement ) {
    return isReference( in_pElement ) || !getValue( in_pElement, "boardID" ).empty();
}

/// Whether the entry in which the element stands has its list of references.
bool hasReferences( const std::vector<const xmlNode*>& in_vecChain ) {
    // Lists of entries have none, and may be long.
    const std::size_t uEntry = !in_vecChain.empty() && isNamed( in_vecChain[0], "callControl" ) ? 2 : 1;
    return in_vecChain.size() > uEntry && ( !ChildElements( in_vecChain[uEntry], "applyTo" ).empty() ||
                                            !ChildElements( in_vecChain[uEntry], "members" ).empty() );
}

} // namespace

Losses::Losses( const SurveyRecord& in_record ) {
    for ( const SurveyedFinding& item : in_record.vecFindings ) {
        if ( item.finding.strRule.empty() || !item.pElement )
            continue;
        if ( item.finding.strAttribute == "ID" ) {
            m_setWithoutIdentifier.insert( item.pElement );
            addDeclaration( item.pElement );
        }
        addMissing( item );
        addWrongReference( item );
        addLostTag( item );
    }
    for ( const xmlNode* const pLost : in_record.vecLost ) {
        for ( const xmlNode* const pElement : getTree( pLost ) )
            addDeclaration( pElement );
        addReferences( pLost );
    }
}

bool Losses::explainReference( const SurveyedFinding& in_item ) const {
    const auto it = m_mapDeclarations.find( in_item.finding.strRule );
    if ( it == m_mapDeclarations.end() )
        return false;
    const auto vecTargets = describeTargets( in_item );
    return std::any_of( vecTargets.begin(), vecTargets.end(),
                        [it]( const std::string& in_strTarget ) { return it->second.contains( in_strTarget ); } );
}

bool Losses::explainInterface( const xmlNode* in_pInterface, const std::string& in_strSection ) const {
    const xmlNode* const pBoard = getParentElement( in_pInterface );
    if ( !pBoard )
        return false;
    if ( m_setWithoutIdentifier.contains( in_pInterface ) || m_setWithoutIdentifier.contains( pBoard ) )
        return true; // references don't find it
    const auto it = m_mapReferences.find( in_strSection );
    if ( it == m_mapReferences.end() )
        return false;
    const std::string strBoard = getValue( pBoard, "ID" );
    const std::string strId = getValue( in_pInterface, "ID" );
    const std::string aMeant[] = { ANY,
                                   describeLine( in_pInterface, strBoard, {} ),
                                   describeLine( in_pInterface, strBoard, strId ),
                                   describeLine( in_pInterface, strBoard, ANY ),
                                   describeLine( in_pInterface, ANY, strId ),
                                   describeLine( in_pInterface, ANY, {} ) };
    return std::any_of( std::begin( aMeant ), std::end( aMeant ),
                        [it]( const std::string& in_strMeant ) { return it->second.contains( in_strMeant ); } );
}

/// A section that is missing, misspelt, or lacks what its reader needs may have meant any line.
void Losses::addMissing( const SurveyedFinding& in_item ) {
    const auto vecChain = getChain( in_item.pElement );
    if ( in_item.is( Rules::MISSING_ELEMENT ) && vecChain.size() < 2 )
        m_mapReferences[vecChain.empty() ? in_item.finding.strAttribute : getElementName( vecChain[0] )].insert( ANY );
    if ( in_item.isUnread() && vecChain.size() == 1 ) {
        m_mapReferences["physicalInterfaceConfigs"].insert( ANY );
        m_mapReferences["callControl"].insert( ANY );
    }
}

/// A reference to nothing, or to what another reference has already, means a line of the same board, one of the same
/// number on another board, or one whose two identifiers are exchanged.
void Losses::addWrongReference( const SurveyedFinding& in_item ) {
    const bool bChannel = in_item.is( Rules::CHANNEL_TWICE );
    const xmlNode* const pReference = bChannel ? getReference( in_item.pElement ) : in_item.pElement;
    if ( !isReference( pReference ) || ( bChannel && sharesChannelWithin( in_item.pElement ) ) )
        return;
    const bool bAnyLine = bChannel || in_item.is( Rules::PHYSICAL_CONFIG_TWICE ) ||
                          in_item.is( Rules::NFAS_MEMBER_TWICE ) || in_item.is( SPAN_IN_TWO_ISDN_GROUPS ) ||
                          in_item.is( Rules::UNKNOWN_INTERFACE );
    const std::string strBoard = getValue( pReference, "boardID" );
    const std::string strInterface = getValue( pReference, "interfaceID" );
    std::set<std::string>& setReferences = getReferences( pReference );
    if ( bAnyLine || in_item.finding.strAttribute == "boardID" )
        setReferences.insert( describeLine( pReference, ANY, strInterface ) );
    if ( bAnyLine || in_item.finding.strAttribute == "interfaceID" )
        setReferences.insert( describeLine( pReference, strBoard, ANY ) );
    if ( ( bAnyLine || isReferenceRule( in_item ) ) && !strInterface.empty() )
        setReferences.insert( describeLine( pReference, strInterface, strBoard ) );
}

/// A text that was a tag may have declared, or meant, any line.
void Losses::addLostTag( const SurveyedFinding& in_item ) {
    const xmlNode* const pElement = in_item.pElement;
    if ( !in_item.is( Rules::UNEXPECTED_TEXT ) || in_item.finding.strValue.find( '=' ) == std::string::npos )
        return;
    if ( isNamed( pElement, "boards" ) )
        m_mapDeclarations[Rules::UNKNOWN_BOARD].insert( joinIdentifiers( ANY, {} ) );
    else if ( isNamed( pElement, "channelGroups" ) )
        m_mapDeclarations[Rules::UNKNOWN_CHANNEL_GROUP].insert( joinIdentifiers( ANY, {} ) );
    else if ( getReferenceRule( pElement ) == Rules::UNKNOWN_BOARD )
        m_mapDeclarations[Rules::UNKNOWN_INTERFACE].insert( joinIdentifiers( getValue( pElement, "ID" ), ANY ) );
    else
        getReferences( pElement ).insert( ANY );
}

void Losses::addDeclaration( const xmlNode* in_pElement ) {
    if ( const std::string strRule( getReferenceRule( in_pElement ) ); !strRule.empty() )
        m_mapDeclarations[strRule].insert(
            describeDeclaration( in_pElement, !m_setWithoutIdentifier.contains( in_pElement ) ) );
}

/// The references in something that was left out. A range belongs to the reference in which it stands. Where none is
/// left to see, and none was read either, it may have meant any line.
void Losses::addReferences( const xmlNode* in_pLost ) {
    const auto vecChain = getChain( in_pLost );
    if ( const auto it = std::find_if( vecChain.begin(), vecChain.end(), &namesLine ); it != vecChain.end() ) {
        addReference( *it );
        return;
    }
    bool bAny = getReferenceRule( in_pLost ).empty() && !hasReferences( vecChain );
    for ( const xmlNode* const pElement : getTree( in_pLost ) ) {
        if ( !namesLine( pElement ) )
            continue;
        addReference( pElement );
        bAny = false;
    }
    if ( bAny )
        getReferences( in_pLost ).insert( ANY );
}

void Losses::addReference( const xmlNode* in_pReference ) {
    getReferences( in_pReference ).insert( describeReference( in_pReference ) );
}

/// The references of the section in which the element stands, or for which it was meant.
std::set<std::string>& Losses::getReferences( const xmlNode* in_pElement ) {
    const auto vecChain = getChain( in_pElement );
    for ( const xmlNode* const pElement : vecChain ) {
        if ( isNamed( pElement, "isdn" ) )
            return m_mapReferences["callControl"];
        if ( isNamed( pElement, "physicalInterfaceConfigs" ) )
            return m_mapReferences["physicalInterfaceConfigs"];
    }
    return m_mapReferences[vecChain.empty() ? "" : getElementName( vecChain[0] )];
}

} // namespace Velquin::Pstn

#include "advice/AdviceReport.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "document/Element.h"
#include "hardware/AnalogInterfaceConfig.h"

namespace Velquin::Pstn {

namespace {

using Key = ModelLocator::Key;

constexpr auto INNER_ENTRIES =
    std::to_array<std::string_view>( { "interface", "interfaceRef", "member", "BChannelRange" } );

/// The reference of an entry to the interface, or to all interfaces of its board.
std::vector<Key> keysOfReference( const Key& in_entry, const InterfaceConfig& in_interface ) {
    const unsigned int uBoardId = in_interface.getBoardConfig()->getId();
    return { in_entry.with( uBoardId, in_interface.getId() ), in_entry.with( uBoardId, ModelLocator::ALL_INTERFACES ) };
}

Key keyOf( const AdviceSubject::IsdnUse& in_use ) {
    return Key( in_use.pMember ? "nfasGroup" : "fasConfig", in_use.pGroup->getId() );
}

Key keyOf( const AdviceSubject::AnalogUse& in_use ) {
    return Key( in_use.bFxs ? "analogFxsConfig" : "analogFxoConfig", in_use.pConfig->getId() );
}

/// The physical configuration that refers to the interface: two may have one identifier.
AdvicePlace placeOfPhysical( const char* in_szElement, const InterfacePhysicalConfig& in_config,
                             const InterfaceConfig& in_interface ) {
    return { keysOfReference( Key( in_szElement, in_config.getId() ), in_interface ), "../.." };
}

} // namespace

void AdviceReport::add( const Advice& in_advice ) {
    const auto [pElement, strPath] = find( in_advice.place );
    if ( !pElement || isFaulty( pElement ) ||
         std::any_of( in_advice.vecRelated.begin(), in_advice.vecRelated.end(),
                      [this]( const AdviceRelated& in_related ) {
                          return isAtFault( [&in_related] { return in_related.place; } );
                      } ) )
        return;
    if ( !m_setBroken.emplace( m_pRule, pElement, in_advice.place.szAttribute ).second )
        return;
    AttributeText value;
    const bool bValue = *in_advice.place.szAttribute && findAttribute( pElement, in_advice.place.szAttribute, value );
    if ( !bValue && in_advice.strMessage.empty() )
        return; // a default value, which nobody wrote
    Finding finding;
    finding.strRule = m_pRule->szName;
    finding.nLevel =
        in_advice.bNote || m_pRule->eSeverity == Severity::NOTE ? Logger::INFO_LEVEL : Logger::WARNING_LEVEL;
    finding.strFile = getElementFile( pElement );
    finding.ullLine = getElementLine( pElement );
    finding.ullElement = getElementNumber( pElement );
    finding.strElementPath = strPath;
    finding.strHint = in_advice.strHint;
    if ( bValue ) {
        finding.eKind = Finding::Kind::INVALID_VALUE;
        finding.strAttribute = in_advice.place.szAttribute;
        finding.strValue = value.view();
    } else {
        finding.strMessage = in_advice.strMessage;
    }
    for ( const AdviceRelated& related : in_advice.vecRelated ) {
        const xmlNode* const pRelated = find( related.place ).pElement;
        if ( pRelated )
            finding.vecRelated.push_back( { related.szLabel, getElementFile( pRelated ), getElementLine( pRelated ),
                                            getElementNumber( pRelated ), related.place.szAttribute } );
    }
    m_vecFindings.push_back( std::move( finding ) );
}

/// Whether the element, or the entry in which it stands, is faulty. An entry within a faulty one may be whole.
bool AdviceReport::isFaulty( const xmlNode* in_pElement ) const {
    if ( m_setFaulty.empty() )
        return false;
    for ( ; in_pElement; in_pElement = getParentElement( in_pElement ) ) {
        if ( m_setFaulty.contains( in_pElement ) )
            return true;
        if ( std::find( INNER_ENTRIES.begin(), INNER_ENTRIES.end(), getElementName( in_pElement ) ) !=
             INNER_ENTRIES.end() )
            return false;
    }
    return false;
}

ModelLocator::Place AdviceReport::find( const AdvicePlace& in_place ) {
    for ( const Key& key : in_place.vecKeys ) {
        ModelLocator::Place place = m_locator.find( key, in_place.strBelow );
        if ( place.pElement )
            return place;
    }
    return {};
}

AdvicePlace placeOf( const AdviceSubject::Board& in_board ) {
    return { { Key( in_board.bAnalog ? ModelLocator::ANALOG_BOARD : ModelLocator::DIGITAL_BOARD,
                    in_board.pBoard->getId() ) } };
}

AdvicePlace placeOf( const InterfaceConfig& in_interface ) {
    return { { Key( isAnalog( in_interface ) ? ModelLocator::ANALOG_BOARD : ModelLocator::DIGITAL_BOARD,
                    in_interface.getBoardConfig()->getId(), in_interface.getId() ) } };
}

AdvicePlace placeOf( const ChannelGroupConfig& in_group ) {
    return { { Key( "channelGroup", in_group.getId() ) } };
}

AdvicePlace placeOf( const AdviceSubject::Physical<DigitalInterfacePhysicalConfig>& in_physical ) {
    return placeOfPhysical( "tirvanaDigitalConfig", *in_physical.pConfig, *in_physical.pInterface );
}

AdvicePlace placeOf( const AdviceSubject::Physical<AnalogInterfacePhysicalConfig>& in_physical ) {
    return placeOfPhysical( "tirvanaAnalogConfig", *in_physical.pConfig, *in_physical.pInterface );
}

AdvicePlace placeOf( const AdviceSubject::IsdnUse& in_use ) {
    return { { keyOf( in_use ) } };
}

AdvicePlace placeOf( const AdviceSubject::AnalogUse& in_use ) {
    return { { keyOf( in_use ) } };
}

AdvicePlace placeOf( const AdviceSubject::IsdnUse& in_use, const InterfaceConfig& in_interface ) {
    return { keysOfReference( keyOf( in_use ), in_interface ) };
}

AdvicePlace placeOf( const AdviceSubject::AnalogUse& in_use, const InterfaceConfig& in_interface ) {
    return { keysOfReference( keyOf( in_use ), in_interface ) };
}

AdvicePlace placeOf( const AdviceSubject::Range& in_range ) {
    std::vector<Key> vecKeys;
    for ( const Key& reference : placeOf( *in_range.pUse, *in_range.pRange->getInterfaceConfig() ).vecKeys )
        vecKeys.push_back( reference.with( in_range.pRange->getFirstChannel(), in_range.pRange->getLastChannel(),
                                           in_range.pGroup->getId() ) );
    return { vecKeys };
}

std::string nameOf( const InterfaceConfig& in_interface ) {
    return ( isAnalog( in_interface ) ? "port " : "span " ) + std::to_string( in_interface.getId() ) + " of board " +
           std::to_string( in_interface.getBoardConfig()->getId() );
}

std::string nameOf( const AdviceSubject::IsdnUse& in_use ) {
    return ( in_use.pMember ? "nfasGroup " : "fasConfig " ) + std::to_string( in_use.pGroup->getId() );
}

} // namespace Velquin::Pstn

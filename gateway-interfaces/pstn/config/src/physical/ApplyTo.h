#pragma once

#include <velquin/Assertion.h>

#include "hardware/InterfaceReference.h"
#include "physical/PhysicalWording.h"
#include "reading/ElementEntries.h"

namespace Velquin::Pstn {

/// Finds the interfaces that one entry of `applyTo` names. The vector must be empty.
template <class TKind>
bool resolveInterfaces( xmlNode* in_pEntry, const Config& in_config, const Logger& in_logger,
                        typename TKind::Interfaces& out_vecInterfaceConfig ) {
    if ( !VELQUIN_ASSERT( out_vecInterfaceConfig.empty() ) )
        return false;
    const AttributeReader reader( in_pEntry, in_logger, PHYSICAL_SETTING_WORDING );
    InterfaceReference<TKind> reference( reader, in_logger, LEADING_DECIMAL );
    if ( !reference.readBoard( in_config ) ||
         !( reference.findInterfaceId() ? reference.readInterface() : reference.takeAllInterfaces( TKind::NAME ) ) )
        return false;
    out_vecInterfaceConfig = reference.releaseInterfaces();
    return true;
}

/// Applies a physical configuration to the interfaces that its `applyTo` element names. An interface takes only one
/// physical configuration. After a fault, the interfaces before it keep the configuration.
/// @param in_onApplied called for each interface that took the configuration; false is a fault
template <class TKind, class TPhysicalConfig, class OnApplied>
bool applyToInterfaces( const ElementReader& in_reader, const Config& in_config, const Logger& in_logger,
                        const TSHandle<TPhysicalConfig>& in_hPhysicalConfig, OnApplied in_onApplied ) {
    xmlNode* const pApplyTo = in_reader.as( PHYSICAL_CHILD_WORDING ).requireChild( "applyTo" );
    if ( !pApplyTo )
        return false;
    return readEntries( ChildElements( pApplyTo ), [&]( xmlNode* in_pEntry ) {
        typename TKind::Interfaces vecInterfaces;
        if ( !resolveInterfaces<TKind>( in_pEntry, in_config, in_logger, vecInterfaces ) )
            return false;
        for ( const auto& hInterface : vecInterfaces ) {
            if ( !hInterface->getPhysicalConfig().isNull() ) {
                VELQUIN_REPORT( in_logger, Fault{ Rules::PHYSICAL_CONFIG_TWICE },
                                "Interface boardID=" << hInterface->getBoardConfig()->getId()
                                                     << " interfaceID=" << hInterface->getId()
                                                     << " already as a physical configuration. Make sure to apply "
                                                        "only one physical configuration per interface." );
                return false;
            }
            if ( !hInterface->setPhysicalConfig( in_hPhysicalConfig ) || !in_onApplied( *hInterface ) )
                return false;
        }
        return true;
    } );
}

} // namespace Velquin::Pstn

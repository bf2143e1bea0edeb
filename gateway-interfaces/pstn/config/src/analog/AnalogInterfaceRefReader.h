#pragma once

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/LimitedObjPtr.h>
#include <velquin/UniqueObjPtr.h>

#include "callcontrol/BChannelRangeConfig.h"
#include "callcontrol/CallControlConfig.h"
#include "hardware/InterfaceReference.h"
#include "reading/ElementEntries.h"

namespace Velquin::Pstn {

// Reads the entries of `applyTo` in FXO and FXS configurations. A traits type holds what differs:
//
//     struct Family {
//         using AnalogConfig = AnalogFxoConfig;               // or AnalogFxsConfig
//         static constexpr const char* NAME;                  // in capitals
//         static constexpr const char* RANGE_FAILURE;         // logged when setConfig fails
//         static constexpr const ReaderWording& WORDING;
//         static bool setConfig( BChannelRangeConfig&, const AnalogConfig& );
//     };

/// Adds an interface, which is one channel, to a channel group.
/// @param in_szInterfaceFailure logged when the range doesn't take the interface
template <class TFamily>
bool addBChannelRange( const typename TFamily::AnalogConfig& in_analogConfig, const AnalogInterfaceConfig& in_interface,
                       const char* in_szInterfaceFailure, ChannelGroupConfig& inout_channelGroup,
                       const Logger& in_logger ) {
    UniqueObjPtr<BChannelRangeConfig> pRange( new BChannelRangeConfig() );
    pRange->setFirstChannel( 1 );
    pRange->setLastChannel( 1 );
    if ( !TFamily::setConfig( *pRange, in_analogConfig ) ) {
        VELQUIN_REPORT_ERROR( in_logger, TFamily::RANGE_FAILURE );
        return false;
    }
    if ( !pRange->setInterfaceConfig( LimitedObjPtr<const InterfaceConfig>( &in_interface ) ) ) {
        VELQUIN_REPORT_ERROR( in_logger, in_szInterfaceFailure );
        return false;
    }
    if ( !inout_channelGroup.addBChannelRangeConfig( pRange.release() ) ) {
        VELQUIN_REPORT_ERROR( in_logger,
                              "failed to add BChannel range to channel group ID= " << inout_channelGroup.getId() );
        return false;
    }
    return true;
}

/// Applies a configuration to the interfaces that one entry names, and adds each interface to the channel group that
/// the entry names. After a fault, the interfaces and ranges before it stay, and the load fails.
template <class TFamily>
bool readAnalogInterfaceRef( typename TFamily::AnalogConfig& inout_analogConfig,
                             const TSHandle<CallControlConfig>& in_hCallControlConfig, xmlNode* in_pEntry,
                             const Config& in_config, const Logger& in_logger ) {
    const ElementReader reader( in_pEntry, in_logger, TFamily::WORDING );
    if ( !VELQUIN_ASSERT( !in_hCallControlConfig.isNull() ) )
        return false;
    InterfaceReference<AnalogKind> reference( reader, in_logger, LEADING_DECIMAL );
    if ( !reference.readBoard( in_config ) && !AttributeReader::passOver() )
        return false;
    AttributeText channelGroupId;
    TSHandle<ChannelGroupConfig> hChannelGroup;
    if ( reader.requireText( "channelGroupID", channelGroupId ) )
        hChannelGroup = in_hCallControlConfig->getChannelGroupConfig( channelGroupId.c_str() );
    if ( hChannelGroup.isNull() && !AttributeReader::passOver() )
        return false;
    if ( reference.getBoard().isNull() )
        return false;

    const char* szInterfaceFailure = nullptr;
    if ( reference.findInterfaceId() ) {
        if ( !reference.readInterface( false ) )
            return false;
        const TSHandle<AnalogInterfaceConfig>& hInterface = reference.getInterfaces().front();
        if ( !inout_analogConfig.addApplyToAnalogInterface( hInterface ) ) {
            VELQUIN_REPORT_ERROR( in_logger, "failed to add interface " << hInterface->getUniqueId( false ) << " to "
                                                                        << TFamily::NAME << " config "
                                                                        << inout_analogConfig.getId() );
            return false;
        }
        szInterfaceFailure = "failed to set analog call control config for BChannelRange";
    } else {
        if ( !reference.takeAllInterfaces( "digital" ) )
            return false;
        if ( !inout_analogConfig.addApplyToAnalogInterfaceVector( reference.getInterfaces() ) ) {
            VELQUIN_REPORT_ERROR( in_logger, "failed to add interfaces from board ID = "
                                                 << reference.getBoard()->getId() << "to Fas config "
                                                 << inout_analogConfig.getId() );
            return false;
        }
        szInterfaceFailure = "failed to set interface for BChannelRange";
    }
    if ( hChannelGroup.isNull() )
        return false;
    for ( const auto& hInterface : reference.getInterfaces() ) {
        if ( !addBChannelRange<TFamily>( inout_analogConfig, *hInterface, szInterfaceFailure, *hChannelGroup,
                                         in_logger ) )
            return false;
    }
    return true;
}

/// Reads each entry of the required child `applyTo`, whatever its name, up to the first that fails.
template <class TInterfaceRefXmlSerializer, class TAnalogConfig>
bool applyToAnalogInterfaces( const AttributeReader& in_reader, TAnalogConfig& inout_analogConfig,
                              TSHandle<CallControlConfig>& in_hCallControlConfig, const Config& in_config ) {
    xmlNode* const pApplyTo = in_reader.requireChild( "applyTo" );
    if ( !pApplyTo )
        return false;
    TInterfaceRefXmlSerializer interfaceRefXmlSerializer;
    const LimitedObjPtr<TAnalogConfig> pAnalogConfig( &inout_analogConfig );
    return readEntries( ChildElements( pApplyTo ), [&]( xmlNode* in_pEntry ) {
        return interfaceRefXmlSerializer.read( pAnalogConfig, in_hCallControlConfig, in_pEntry, in_config );
    } );
}

/// Reads a required child into a new part of a configuration. The configuration then owns the part.
template <class TConfig, class TPart>
bool readPart( const ElementReader& in_reader, const char* in_szChild,
               bool ( *in_read )( const ElementReader&, TPart& ), TConfig& out_config,
               bool ( TConfig::*in_set )( TPart* ) ) {
    UniqueObjPtr<TPart> pPart( new TPart() );
    return ( in_reader.readChild( in_szChild, *in_read, *pPart ) && ( out_config.*in_set )( pPart.release() ) ) ||
           AttributeReader::passOver();
}

} // namespace Velquin::Pstn

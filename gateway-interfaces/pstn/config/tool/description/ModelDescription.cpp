#include "ModelDescription.h"

#include <map>
#include <unordered_map>

#include "Describing.h"

namespace Velquin::Pstn {

// ---- Boards and providers

Json describe( const TirvanaThreadGroupConfig& in_threads ) {
    const std::string strPriority = in_threads.getThreadsPriority().getName();
    return Json::object( {
        { "count", in_threads.getThreadCount() },
        { "priority", strPriority.empty() ? Json() : Json( strPriority ) },
    } );
}

Json describe( const TirvanaProviderConfig& in_provider ) {
    const Json tx = keyword( Keywords::TRUE_FALSE, in_provider.isReverseBitsOfTxMediaStreamsEnabled() );
    const Json rx = keyword( Keywords::TRUE_FALSE, in_provider.isReverseBitsOfRxMediaStreamsEnabled() );
    return Json::object( {
        { "BChannelsThreads", describe( in_provider.getBChannelsThreadsConfig() ) },
        { "DChannelsThreads", describe( in_provider.getDChannelsThreadsConfig() ) },
        { "TxMediaStreams", Json::object( { { "reverseBits", tx } } ) },
        { "RxMediaStreams", Json::object( { { "reverseBits", rx } } ) },
    } );
}

Json describe( const AnalogInterfaceConfig& in_port ) {
    Json settings = Json::object( {
        { "displayName", in_port.getDisplayName() },
        { "type", keyword( Keywords::ANALOG_MEDIA_TYPE, in_port.getMediaType() ) },
        { "phoneNumber", in_port.getPhoneNumber() },
        { "callerName", in_port.getCallerName() },
    } );
    if ( const auto* const pPort = dynamic_cast<const TirvanaAnalogInterfaceConfig*>( &in_port ) )
        append( settings, "tirpipeInterface", pPort->getTirpipeInterface() );
    return settings;
}

Json describe( const TirvanaDigitalInterfaceConfig& in_span ) {
    return Json::object( {
        { "displayName", in_span.getDisplayName() },
        { "tirpipe", in_span.getTirpipe() },
        { "primaryClockReference", in_span.isPrimaryClockReference() },
    } );
}

Json describe( const TirvanaDigitalVirtualInterfaceConfig& in_span ) {
    return Json::object( {
        { "displayName", in_span.getDisplayName() },
        { "peerVirtualBoardID", in_span.getPeerVirtualBoardId() },
        { "peerVirtualInterfaceID", in_span.getPeerVirtualInterfaceId() },
    } );
}

Json describe( const BoardConfig& in_board ) {
    Json settings = Json::object( {
        { "displayName", in_board.getDisplayName() },
        { "model", in_board.getModel() },
        { "pciSlot", optional( in_board.getPCISlot() ) },
        { "pciBus", optional( in_board.getPCIBus() ) },
    } );
    if ( const auto* const pAnalog = dynamic_cast<const TirvanaAnalogBoardConfig*>( &in_board ) )
        append( settings, "tirpipe", pAnalog->getTirpipe() );
    if ( const auto* const pDigital = dynamic_cast<const TirvanaDigitalBoardConfig*>( &in_board ) ) {
        const auto hReference = pDigital->getPrimaryClockReferenceInterfaceConfig();
        append( settings, "primaryClockReference", hReference.isNull() ? Json() : Json( hReference->getId() ) );
    }
    return settings;
}

namespace {

Json describeInterface( const AnalogInterfaceConfig& in_port ) {
    return describeMarked<AnalogInterfaceConfig>( in_port, TirvanaAnalogInterfaceConfig() );
}

Json describeInterface( const DigitalInterfaceConfig& in_span ) {
    if ( const auto* const pSpan = dynamic_cast<const TirvanaDigitalInterfaceConfig*>( &in_span ) )
        return describeMarked( *pSpan, TirvanaDigitalInterfaceConfig() );
    if ( const auto* const pVirtual = dynamic_cast<const TirvanaDigitalVirtualInterfaceConfig*>( &in_span ) )
        return describeMarked( *pVirtual, TirvanaDigitalVirtualInterfaceConfig() );
    return Json::object();
}

auto getInterfaces( const AnalogBoardConfig& in_board ) {
    std::vector<TSHandle<AnalogInterfaceConfig>> vecInterfaces;
    in_board.getAnalogInterfacesConfig( vecInterfaces );
    return vecInterfaces;
}

auto getInterfaces( const DigitalBoardConfig& in_board ) {
    std::vector<TSHandle<DigitalInterfaceConfig>> vecInterfaces;
    in_board.getDigitalInterfacesConfig( vecInterfaces );
    return vecInterfaces;
}

/// @param in_addApplied adds to the description of an interface what is applied to it
template <class TBoards, class AddApplied>
Json describeBoardsOfKind( const TBoards& in_boards, AddApplied in_addApplied ) {
    Json section = Json::object();
    for ( const auto& [uBoardId, hBoard] : in_boards ) {
        Json board = describeMarked<BoardConfig>( *hBoard, TirvanaAnalogBoardConfig() );
        if constexpr ( std::is_same_v<TBoards, Config::DigitalBoardConfigs> )
            append( board, "virtual",
                    dynamic_cast<const TirvanaDigitalVirtualBoardConfig*>( hBoard.get() ) != nullptr );
        Json interfaces = Json::object();
        for ( const auto& hInterface : getInterfaces( *hBoard ) ) {
            Json line = Json::object(
                { { "shortId", hInterface->getUniqueId( true ) }, { "longId", hInterface->getUniqueId( false ) } } );
            line.update( describeInterface( *hInterface ) );
            in_addApplied( line, *hInterface );
            append( interfaces, std::to_string( hInterface->getId() ), std::move( line ) );
        }
        append( board, "interfaces", std::move( interfaces ) );
        append( section, std::to_string( uBoardId ), std::move( board ) );
    }
    return section;
}

// ---- What is applied to interfaces

/// The physical configurations of the interfaces of a kind, by their keys. The key is the identifier; that of another
/// configuration with the same identifier has a number behind.
template <class TPhysical>
struct Physicals {
    std::unordered_map<const TPhysical*, std::string> mapKeys;
    std::unordered_map<const TPhysical*, Json> mapLines; ///< short identifiers of the interfaces that have each
    std::map<unsigned int, std::vector<const TPhysical*>> mapById; ///< those of an identifier: as the interfaces stand

    template <class TBoards>
    explicit Physicals( const TBoards& in_boards ) {
        for ( const auto& [uBoardId, hBoard] : in_boards ) {
            for ( const auto& hInterface : getInterfaces( *hBoard ) ) {
                const TPhysical* const pPhysical = hInterface->getPhysicalConfig().get();
                if ( !pPhysical )
                    continue;
                const auto [itLines, bFirst] = mapLines.try_emplace( pPhysical, Json::array() );
                itLines->second.push_back( hInterface->getUniqueId( true ) );
                if ( !bFirst )
                    continue;
                auto& vecSame = mapById[pPhysical->getId()];
                vecSame.push_back( pPhysical );
                mapKeys[pPhysical] =
                    std::to_string( pPhysical->getId() ) +
                    ( vecSame.size() > 1 ? " (" + std::to_string( vecSame.size() ) + ")" : std::string() );
            }
        }
    }

    Json describeAll() const {
        Json section = Json::object();
        for ( const auto& [uId, vecSame] : mapById ) {
            for ( const TPhysical* const pPhysical : vecSame ) {
                Json settings = describePhysical( *pPhysical );
                if ( !settings.contains( "appliedTo" ) ) // the model lists them for analog ones only
                    append( settings, "appliedTo", mapLines.at( pPhysical ) );
                append( section, mapKeys.at( pPhysical ), std::move( settings ) );
            }
        }
        return section;
    }
};

/// The names of the call control of each interface, "FAS 1", by its short identifier.
std::unordered_map<std::string, Json> listCallControl( const Json& in_model ) {
    std::unordered_map<std::string, Json> mapNames;
    for ( const char* const szKind : { "NFAS", "FAS", "FXO", "FXS" } ) {
        for ( const auto& [strId, config] : in_model[szKind].items() ) {
            const std::string strName = szKind + ( " " + strId );
            const auto add = [&]( const std::string& in_strLine ) {
                mapNames.try_emplace( in_strLine, Json::array() ).first->second.push_back( strName );
            };
            if ( config.contains( "members" ) ) {
                for ( const auto& [strLine, member] : config["members"].items() )
                    add( strLine );
            } else {
                for ( const Json& line : config["appliedTo"] )
                    add( line.get<std::string>() );
            }
        }
    }
    return mapNames;
}

} // namespace

void append( Json& inout_object, std::string in_strKey, Json in_value ) {
    // The vector below has no search in it.
    auto& vecEntries = static_cast<Json::object_t::Container&>( inout_object.get_ref<Json::object_t&>() );
    vecEntries.emplace_back( std::move( in_strKey ), std::move( in_value ) );
}

void markDefaults( Json& inout_settings, const Json& in_fresh ) {
    Json defaults = Json::array();
    for ( const auto& [strKey, value] : inout_settings.items() ) {
        const auto itFresh = in_fresh.find( strKey );
        if ( itFresh == in_fresh.end() )
            continue;
        if ( value.is_object() && itFresh->is_object() )
            markDefaults( value, *itFresh );
        else if ( value.is_primitive() && !value.is_null() && value == *itFresh )
            defaults.push_back( strKey );
    }
    if ( !defaults.empty() )
        append( inout_settings, "defaults", std::move( defaults ) );
}

Json describeBoards( const Config& in_config ) {
    const auto addNothing = []( Json&, const auto& ) {};
    Json model = Json::object();
    append( model, "analogBoards", describeBoardsOfKind( in_config.getAnalogBoardsConfig(), addNothing ) );
    append( model, "digitalBoards", describeBoardsOfKind( in_config.getDigitalBoardsConfig(), addNothing ) );
    return model;
}

Json describeModel( const Config& in_config ) {
    Json callControl = Json::object();
    describeCallControl( callControl, in_config.getCallControlConfig().get() );
    const auto mapCallControl = listCallControl( callControl );

    Json model = Json::object();
    Json providers = Json::object();
    for ( const auto& [strId, hProvider] :
          std::map( in_config.getProvidersConfig().begin(), in_config.getProvidersConfig().end() ) )
        append( providers, strId, describePart<TirvanaProviderConfig>( hProvider ) );
    append( model, "providers", std::move( providers ) );

    const auto addApplied = [&]( const auto& in_physicals ) {
        return [&]( Json& inout_line, const auto& in_interface ) {
            const auto itKey = in_physicals.mapKeys.find( in_interface.getPhysicalConfig().get() );
            append( inout_line, "physicalConfig",
                    itKey == in_physicals.mapKeys.end() ? Json() : Json( itKey->second ) );
            const auto itNames = mapCallControl.find( in_interface.getUniqueId( true ) );
            append( inout_line, "callControl", itNames == mapCallControl.end() ? Json::array() : itNames->second );
        };
    };
    const Physicals<AnalogInterfacePhysicalConfig> analog( in_config.getAnalogBoardsConfig() );
    const Physicals<DigitalInterfacePhysicalConfig> digital( in_config.getDigitalBoardsConfig() );
    append( model, "analogBoards", describeBoardsOfKind( in_config.getAnalogBoardsConfig(), addApplied( analog ) ) );
    append( model, "digitalBoards", describeBoardsOfKind( in_config.getDigitalBoardsConfig(), addApplied( digital ) ) );
    append( model, "analogConfigs", analog.describeAll() );
    append( model, "digitalConfigs", digital.describeAll() );
    model.update( callControl );
    return model;
}

} // namespace Velquin::Pstn

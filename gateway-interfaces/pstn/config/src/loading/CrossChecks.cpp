#include "loading/CrossChecks.h"

#include <set>
#include <string_view>
#include <unordered_set>

#include <velquin/Assertion.h>

#include "hardware/InterfaceKind.h"
#include "hardware/TirvanaAnalogBoardConfig.h"

// The checks are part of a load, and their assertions are those of the loader.
#define ASSERT_OF_LOADER( ... )                                                                                        \
    static_cast<bool>( Assertion( static_cast<bool>( __VA_ARGS__ ), #__VA_ARGS__, "XmlConfig", __LINE__ ) )

namespace Velquin::Pstn {

namespace {

using UniqueIds = std::unordered_set<std::string_view>;

bool getInterfaces( const TSHandle<AnalogBoardConfig>& hBoard, AnalogKind::Interfaces& vecInterfaces ) {
    return ASSERT_OF_LOADER( hBoard->getAnalogInterfacesConfig( vecInterfaces ) );
}

bool getInterfaces( const TSHandle<DigitalBoardConfig>& hBoard, DigitalKind::Interfaces& vecInterfaces ) {
    return ASSERT_OF_LOADER( hBoard->getDigitalInterfacesConfig( vecInterfaces ) );
}

/// Calls the function for every interface of every board of one kind, in order.
template <class TKind, class Function>
bool forEachInterface( const Config& in_config, Function in_function ) {
    for ( const auto& [uBoardId, hBoard] : TKind::getBoards( in_config ) ) {
        typename TKind::Interfaces vecInterfaces;
        if ( !ASSERT_OF_LOADER( !hBoard.isNull() ) || !getInterfaces( hBoard, vecInterfaces ) )
            return false;
        for ( const auto& hInterface : vecInterfaces ) {
            if ( !ASSERT_OF_LOADER( !hInterface.isNull() ) )
                return false;
            in_function( *hInterface );
        }
    }
    return true;
}

template <class TKind>
void addFinding( const InterfaceConfig& in_interface, const char* in_szSubject, const std::string& in_strWhat,
                 CrossCheckFindings& out_findings ) {
    std::string strText = in_szSubject;
    strText.append( " \"" ).append( in_interface.getUniqueId( false ) ).append( "\"" ).append( in_strWhat );
    out_findings.push_back( { std::is_same_v<TKind, AnalogKind>, in_interface.getBoardConfig()->getId(),
                              in_interface.getId(), std::move( strText ) } );
}

template <class TKind>
bool checkPhysicalConfigs( const Config& in_config, const char* in_szSubject, CrossCheckFindings& out_findings ) {
    return forEachInterface<TKind>( in_config, [&]( const auto& in_interface ) {
        if ( in_interface.getPhysicalConfig().isNull() )
            addFinding<TKind>( in_interface, in_szSubject,
                               " has not physical configuration. Please make sure to apply a physical configuration to "
                               "this interface.",
                               out_findings );
    } );
}

template <class TKind>
bool checkCallControl( const Config& in_config, const char* in_szSubject, const UniqueIds& in_setConfigured,
                       CrossCheckFindings& out_findings ) {
    return forEachInterface<TKind>( in_config, [&]( const auto& in_interface ) {
        if ( !in_setConfigured.contains( in_interface.getUniqueId( false ) ) )
            addFinding<TKind>( in_interface, in_szSubject,
                               " has no call-control configuration. Please make sure to apply a call- control "
                               "configuration to this interface.",
                               out_findings );
    } );
}

bool checkAnalogPhysicalConfigs( const Config& in_config, CrossCheckFindings& out_findings ) {
    return checkPhysicalConfigs<AnalogKind>( in_config, "Analog interface", out_findings );
}

bool checkDigitalPhysicalConfigs( const Config& in_config, CrossCheckFindings& out_findings ) {
    return checkPhysicalConfigs<DigitalKind>( in_config, "Digital interface", out_findings );
}

bool checkTirpipes( const Config& in_config, CrossCheckFindings& out_findings ) {
    std::set<unsigned int> setTirpipes;
    const auto describe = []( unsigned int in_uTirpipe ) {
        return " has an already used tirpipe number: " + std::to_string( in_uTirpipe ) +
               ". Please make sure every analog board and Digital interface has a unique tirpipe number.";
    };
    for ( const auto& [uBoardId, hBoard] : in_config.getAnalogBoardsConfig() ) {
        if ( !ASSERT_OF_LOADER( !hBoard.isNull() ) )
            return false;
        const auto* const pBoard = dynamic_cast<const TirvanaAnalogBoardConfig*>( hBoard.get() );
        if ( pBoard && !setTirpipes.insert( pBoard->getTirpipe() ).second )
            out_findings.push_back(
                { true, uBoardId, std::nullopt,
                  "Analog board \"" + std::to_string( uBoardId ) + "\"" + describe( pBoard->getTirpipe() ) } );
    }
    // A virtual span has no tirpipe number.
    return forEachInterface<DigitalKind>( in_config, [&]( const DigitalInterfaceConfig& in_interface ) {
        const auto* const pInterface = dynamic_cast<const TirvanaDigitalInterfaceConfig*>( &in_interface );
        if ( pInterface && !setTirpipes.insert( pInterface->getTirpipe() ).second )
            addFinding<DigitalKind>( in_interface, "Digital Interface", describe( pInterface->getTirpipe() ),
                                     out_findings );
    } );
}

// The two questions about call control gather the configured interfaces in one sweep over the groups: to ask group
// after group for every interface would cost their product.

bool checkAnalogCallControl( const Config& in_config, CrossCheckFindings& out_findings ) {
    UniqueIds setConfigured;
    const auto gather = [&setConfigured]( const auto& in_mapConfigs ) {
        for ( const auto& [uId, hConfig] : in_mapConfigs ) {
            for ( const auto& hInterface : hConfig->getApplyToAnalogInterfaces() )
                setConfigured.insert( hInterface->getUniqueId( false ) );
        }
    };
    const auto hCallControl = in_config.getCallControlConfig();
    if ( !hCallControl.isNull() && !hCallControl->getAnalogConfig().isNull() ) {
        gather( hCallControl->getAnalogConfig()->getFxoConfigs() );
        gather( hCallControl->getAnalogConfig()->getFxsConfigs() );
    }
    return checkCallControl<AnalogKind>( in_config, "Analog interface", setConfigured, out_findings );
}

bool checkDigitalCallControl( const Config& in_config, CrossCheckFindings& out_findings ) {
    UniqueIds setConfigured;
    const auto hCallControl = in_config.getCallControlConfig();
    if ( !hCallControl.isNull() && !hCallControl->getIsdnConfig().isNull() ) {
        for ( const auto& [uId, hFasConfig] : hCallControl->getIsdnConfig()->getFasConfigs() ) {
            for ( const auto& hInterface : hFasConfig->getApplyToDigitalInterfaces() )
                setConfigured.insert( hInterface->getUniqueId( false ) );
        }
        for ( const auto& [uId, hNfasConfig] : hCallControl->getIsdnConfig()->getNfasConfigs() ) {
            for ( const auto& [strUniqueId, hMember] : hNfasConfig->getMemberInterfaces() )
                setConfigured.insert( strUniqueId );
        }
    }
    return checkCallControl<DigitalKind>( in_config, "Digital interface", setConfigured, out_findings );
}

} // namespace

const std::vector<CrossCheck>& getCrossChecks() {
    static const std::vector<CrossCheck> s_vecCrossChecks{
        &checkAnalogPhysicalConfigs, &checkDigitalPhysicalConfigs, &checkTirpipes,
        &checkAnalogCallControl,     &checkDigitalCallControl,
    };
    return s_vecCrossChecks;
}

} // namespace Velquin::Pstn

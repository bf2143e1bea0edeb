#include "loading/CrossChecks.h"

#include <algorithm>
#include <functional>
#include <set>
#include <type_traits>
#include <utility>

#include <velquin/Assertion.h>

#include "hardware/InterfaceKind.h"
#include "hardware/TirvanaAnalogBoardConfig.h"

// The checks are part of a load, and their assertions are those of the loader.
#define ASSERT_OF_LOADER( ... )                                                                                        \
    static_cast<bool>( Assertion( static_cast<bool>( __VA_ARGS__ ), #__VA_ARGS__, "XmlConfig", __LINE__ ) )

namespace Velquin::Pstn {

namespace {

bool getInterfaces( const TSHandle<AnalogBoardConfig>& hBoard, AnalogKind::Interfaces& vecInterfaces ) {
    return ASSERT_OF_LOADER( hBoard->getAnalogInterfacesConfig( vecInterfaces ) );
}

bool getInterfaces( const TSHandle<DigitalBoardConfig>& hBoard, DigitalKind::Interfaces& vecInterfaces ) {
    return ASSERT_OF_LOADER( hBoard->getDigitalInterfacesConfig( vecInterfaces ) );
}

template <class TKind>
bool gatherInterfaces( const Config& in_config, std::vector<const typename TKind::Interface*>& out_vecInterfaces ) {
    typename TKind::Interfaces vecInterfaces;
    for ( const auto& [uBoardId, hBoard] : TKind::getBoards( in_config ) ) {
        vecInterfaces.clear();
        if ( !ASSERT_OF_LOADER( !hBoard.isNull() ) || !getInterfaces( hBoard, vecInterfaces ) )
            return false;
        for ( const auto& hInterface : vecInterfaces ) {
            if ( !ASSERT_OF_LOADER( !hInterface.isNull() ) ||
                 !ASSERT_OF_LOADER( !hInterface->getBoardConfig().isNull() ) )
                return false;
            out_vecInterfaces.push_back( hInterface.get() );
        }
    }
    return true;
}

template <class TInterface>
void addFinding( const TInterface& in_interface, const char* in_szSubject, const std::string& in_strWhat,
                 CrossCheckFindings& out_findings ) {
    std::string strText = in_szSubject;
    strText.append( " \"" ).append( in_interface.getUniqueId( false ) ).append( "\"" ).append( in_strWhat );
    out_findings.push_back( { std::is_same_v<TInterface, AnalogInterfaceConfig>, in_interface.getBoardConfig()->getId(),
                              in_interface.getId(), std::move( strText ) } );
}

template <class TInterface>
void checkPhysicalConfigs( const std::vector<const TInterface*>& in_vecInterfaces, const char* in_szSubject,
                           CrossCheckFindings& out_findings ) {
    for ( const TInterface* const pInterface : in_vecInterfaces ) {
        if ( pInterface->getPhysicalConfig().isNull() )
            addFinding( *pInterface, in_szSubject,
                        " has not physical configuration. Please make sure to apply a physical configuration to this "
                        "interface.",
                        out_findings );
    }
}

void checkAnalogPhysicalConfigs( const CrossCheckSubject& in_subject, CrossCheckFindings& out_findings ) {
    checkPhysicalConfigs( in_subject.vecAnalogInterfaces, "Analog interface", out_findings );
}

void checkDigitalPhysicalConfigs( const CrossCheckSubject& in_subject, CrossCheckFindings& out_findings ) {
    checkPhysicalConfigs( in_subject.vecDigitalInterfaces, "Digital interface", out_findings );
}

/// Calls one of two operations for each owner of a tirpipe number: analog boards, then spans; a virtual span has none.
template <class OnBoard, class OnInterface>
void visitTirpipes( const CrossCheckSubject& in_subject, OnBoard in_onBoard, OnInterface in_onInterface ) {
    for ( const auto& [uBoardId, hBoard] : in_subject.config.getAnalogBoardsConfig() ) {
        if ( const auto* const pBoard = dynamic_cast<const TirvanaAnalogBoardConfig*>( hBoard.get() ) )
            in_onBoard( *pBoard );
    }
    for ( const DigitalInterfaceConfig* const pDigitalInterface : in_subject.vecDigitalInterfaces ) {
        if ( const auto* const pInterface = dynamic_cast<const TirvanaDigitalInterfaceConfig*>( pDigitalInterface ) )
            in_onInterface( *pInterface );
    }
}

void checkTirpipes( const CrossCheckSubject& in_subject, CrossCheckFindings& out_findings ) {
    std::vector<unsigned int> vecTirpipes;
    const auto add = [&vecTirpipes]( const auto& in_owner ) { vecTirpipes.push_back( in_owner.getTirpipe() ); };
    visitTirpipes( in_subject, add, add );
    std::sort( vecTirpipes.begin(), vecTirpipes.end() );
    if ( std::adjacent_find( vecTirpipes.begin(), vecTirpipes.end() ) == vecTirpipes.end() )
        return;

    std::set<unsigned int> setTaken;
    const auto describe = []( unsigned int in_uTirpipe ) {
        return " has an already used tirpipe number: " + std::to_string( in_uTirpipe ) +
               ". Please make sure every analog board and Digital interface has a unique tirpipe number.";
    };
    visitTirpipes(
        in_subject,
        [&]( const TirvanaAnalogBoardConfig& in_board ) {
            if ( !setTaken.insert( in_board.getTirpipe() ).second )
                out_findings.push_back( { true, in_board.getId(), std::nullopt,
                                          "Analog board \"" + std::to_string( in_board.getId() ) + "\"" +
                                              describe( in_board.getTirpipe() ) } );
        },
        [&]( const TirvanaDigitalInterfaceConfig& in_interface ) {
            if ( !setTaken.insert( in_interface.getTirpipe() ).second )
                addFinding<DigitalInterfaceConfig>( in_interface, "Digital Interface",
                                                    describe( in_interface.getTirpipe() ), out_findings );
        } );
}

/// @param in_vecConfigured the interfaces that have call control, gathered in one sweep over the groups: to ask group
/// after group for every interface would cost their product
template <class TInterface>
void checkCallControl( const std::vector<const TInterface*>& in_vecInterfaces,
                       std::vector<const TInterface*> in_vecConfigured, const char* in_szSubject,
                       CrossCheckFindings& out_findings ) {
    std::sort( in_vecConfigured.begin(), in_vecConfigured.end(), std::less<>() );
    for ( const TInterface* const pInterface : in_vecInterfaces ) {
        if ( !std::binary_search( in_vecConfigured.begin(), in_vecConfigured.end(), pInterface, std::less<>() ) )
            addFinding( *pInterface, in_szSubject,
                        " has no call-control configuration. Please make sure to apply a call- control configuration "
                        "to this interface.",
                        out_findings );
    }
}

void checkAnalogCallControl( const CrossCheckSubject& in_subject, CrossCheckFindings& out_findings ) {
    std::vector<const AnalogInterfaceConfig*> vecConfigured;
    const auto gather = [&vecConfigured]( const auto& in_mapConfigs ) {
        for ( const auto& [uId, hConfig] : in_mapConfigs ) {
            for ( const auto& hInterface : hConfig->getApplyToAnalogInterfaces() )
                vecConfigured.push_back( hInterface.get() );
        }
    };
    const auto hCallControl = in_subject.config.getCallControlConfig();
    if ( !hCallControl.isNull() && !hCallControl->getAnalogConfig().isNull() ) {
        gather( hCallControl->getAnalogConfig()->getFxoConfigs() );
        gather( hCallControl->getAnalogConfig()->getFxsConfigs() );
    }
    checkCallControl( in_subject.vecAnalogInterfaces, std::move( vecConfigured ), "Analog interface", out_findings );
}

void checkDigitalCallControl( const CrossCheckSubject& in_subject, CrossCheckFindings& out_findings ) {
    std::vector<const DigitalInterfaceConfig*> vecConfigured;
    const auto hCallControl = in_subject.config.getCallControlConfig();
    if ( !hCallControl.isNull() && !hCallControl->getIsdnConfig().isNull() ) {
        for ( const auto& [uId, hFasConfig] : hCallControl->getIsdnConfig()->getFasConfigs() ) {
            for ( const auto& hInterface : hFasConfig->getApplyToDigitalInterfaces() )
                vecConfigured.push_back( hInterface.get() );
        }
        for ( const auto& [uId, hNfasConfig] : hCallControl->getIsdnConfig()->getNfasConfigs() ) {
            for ( const auto& [strUniqueId, hMember] : hNfasConfig->getMemberInterfaces() )
                vecConfigured.push_back( hMember->getInterfaceConfig().get() );
        }
    }
    checkCallControl( in_subject.vecDigitalInterfaces, std::move( vecConfigured ), "Digital interface", out_findings );
}

} // namespace

bool CrossCheckSubject::gather() {
    return gatherInterfaces<AnalogKind>( config, vecAnalogInterfaces ) &&
           gatherInterfaces<DigitalKind>( config, vecDigitalInterfaces );
}

const std::vector<CrossCheck>& getCrossChecks() {
    static const std::vector<CrossCheck> s_vecCrossChecks{
        &checkAnalogPhysicalConfigs, &checkDigitalPhysicalConfigs, &checkTirpipes,
        &checkAnalogCallControl,     &checkDigitalCallControl,
    };
    return s_vecCrossChecks;
}

} // namespace Velquin::Pstn

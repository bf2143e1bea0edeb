#include "loading/CrossChecks.h"

#include <algorithm>
#include <functional>
#include <set>
#include <type_traits>
#include <utility>

#include <velquin/Assertion.h>

#include "RuleNames.h"
#include "hardware/InterfaceKind.h"
#include "hardware/TirvanaAnalogBoardConfig.h"

// The checks are part of a load, so their assertions name the loader's file.
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
void addFinding( const TInterface& in_interface, Fault in_fault, const char* in_szSubject,
                 const std::string& in_strWhat, CrossCheckFindings& out_findings ) {
    std::string strText = in_szSubject;
    strText.append( " \"" ).append( in_interface.getUniqueId( false ) ).append( "\"" ).append( in_strWhat );
    out_findings.push_back( { std::is_same_v<TInterface, AnalogInterfaceConfig>, in_interface.getBoardConfig()->getId(),
                              in_interface.getId(), std::move( in_fault ), std::move( strText ) } );
}

template <class TInterface>
void checkPhysicalConfigs( const std::vector<const TInterface*>& in_vecInterfaces, const char* in_szSubject,
                           CrossCheckFindings& out_findings ) {
    for ( const TInterface* const pInterface : in_vecInterfaces ) {
        if ( pInterface->getPhysicalConfig().isNull() )
            addFinding( *pInterface, { Rules::NO_PHYSICAL_CONFIG }, in_szSubject,
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

/// The numbers taken so far. Most come in ascending order.
class TakenNumbers {
public:
    /// False when the number is already taken.
    bool take( unsigned int in_uNumber ) {
        if ( m_vecAscending.empty() || m_vecAscending.back() < in_uNumber ) {
            m_vecAscending.push_back( in_uNumber );
            return true;
        }
        return !std::binary_search( m_vecAscending.begin(), m_vecAscending.end(), in_uNumber ) &&
               m_setOthers.insert( in_uNumber ).second;
    }

private:
    std::vector<unsigned int> m_vecAscending;
    std::set<unsigned int> m_setOthers;
};

void checkTirpipes( const CrossCheckSubject& in_subject, CrossCheckFindings& out_findings ) {
    TakenNumbers taken;
    const auto tirpipeTwice = []( unsigned int in_uTirpipe ) {
        return Fault{ Rules::TIRPIPE_TWICE, "tirpipe", std::to_string( in_uTirpipe ) };
    };
    const auto describe = []( unsigned int in_uTirpipe ) {
        return " has an already used tirpipe number: " + std::to_string( in_uTirpipe ) +
               ". Please make sure every analog board and Digital interface has a unique tirpipe number.";
    };
    for ( const auto& [uBoardId, hBoard] : in_subject.config.getAnalogBoardsConfig() ) {
        const auto* const pBoard = dynamic_cast<const TirvanaAnalogBoardConfig*>( hBoard.get() );
        if ( pBoard && !taken.take( pBoard->getTirpipe() ) )
            out_findings.push_back(
                { true, uBoardId, std::nullopt, tirpipeTwice( pBoard->getTirpipe() ),
                  "Analog board \"" + std::to_string( uBoardId ) + "\"" + describe( pBoard->getTirpipe() ) } );
    }
    for ( const DigitalInterfaceConfig* const pDigitalInterface : in_subject.vecDigitalInterfaces ) {
        // A virtual span has no tirpipe number.
        const auto* const pInterface = dynamic_cast<const TirvanaDigitalInterfaceConfig*>( pDigitalInterface );
        if ( pInterface && !taken.take( pInterface->getTirpipe() ) )
            addFinding( *pDigitalInterface, tirpipeTwice( pInterface->getTirpipe() ), "Digital Interface",
                        describe( pInterface->getTirpipe() ), out_findings );
    }
}

/// @param in_vecConfigured the interfaces that have call control, from one sweep over the groups: to ask group after
/// group for each interface would cost the product of both
template <class TInterface>
void checkCallControl( const std::vector<const TInterface*>& in_vecInterfaces,
                       std::vector<const TInterface*> in_vecConfigured, const char* in_szSubject,
                       CrossCheckFindings& out_findings ) {
    std::sort( in_vecConfigured.begin(), in_vecConfigured.end(), std::less<>() );
    for ( const TInterface* const pInterface : in_vecInterfaces ) {
        if ( !std::binary_search( in_vecConfigured.begin(), in_vecConfigured.end(), pInterface, std::less<>() ) )
            addFinding( *pInterface, { Rules::NO_CALL_CONTROL }, in_szSubject,
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

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

#include "advice/AdviceTable.h"
#include "analog/AnalogCallControlConfig.h"
#include "hardware/TirvanaAnalogInterfaceConfig.h"

// Analog ports and their call control.

namespace Velquin::Pstn {

namespace {

bool isFxs( const AdviceSubject::Port& in_port ) {
    return in_port.pInterface->getMediaType() == AnalogInterfaceConfig::MediaType::FXS;
}

bool hasDetector( const AnalogDisconnectSupervisionConfig& in_supervision ) {
    const auto& mapDetectors = in_supervision.getDisconnectDetectorsMap();
    return in_supervision.isRingCadenceDetectionEnabled() ||
           std::any_of( mapDetectors.begin(), mapDetectors.end(),
                        []( const auto& in_entry ) { return !in_entry.second->getSequence().empty(); } );
}

} // namespace

void advisePortType( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Port& port : in_subject.vecPorts ) {
        const bool bFxs = isFxs( port );
        const auto itWrong = std::find_if( port.uses.begin(), port.uses.end(),
                                           [=]( const auto& in_use ) { return in_use.bFxs != bFxs; } );
        if ( itWrong == port.uses.end() )
            continue;
        Advice advice{ placeOf( *itWrong, *port.pInterface ),
                       nameOf( *port.pInterface ) + ( bFxs ? " is an FXS port in an FXO configuration"
                                                           : " is an FXO port in an FXS "
                                                             "configuration" ),
                       bFxs ? "move it to an analogFxsConfig, or change its type"
                            : "move it to an analogFxoConfig, or change its type",
                       { { "declared here", placeOf( *port.pInterface ).attribute( "type" ) } } };
        const auto itRight = std::find_if( port.uses.begin(), port.uses.end(),
                                           [=]( const auto& in_use ) { return in_use.bFxs == bFxs; } );
        if ( itRight != port.uses.end() ) {
            advice.strHint = "take it out: it has its own configuration already";
            advice.vecRelated.push_back( { "also here", placeOf( *itRight, *port.pInterface ) } );
        }
        inout_report.add( advice );
    }
}

void advisePortInTwoConfigs( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Port& port : in_subject.vecPorts ) {
        const bool bFxs = isFxs( port );
        const AdviceSubject::AnalogUse* pFirst = nullptr;
        for ( const AdviceSubject::AnalogUse& use : port.uses ) {
            if ( use.bFxs != bFxs )
                continue; // advisePortType tells
            if ( !pFirst ) {
                pFirst = &use;
            } else if ( use.pConfig != pFirst->pConfig ) {
                inout_report.add( { placeOf( use, *port.pInterface ),
                                    nameOf( *port.pInterface ) + " already has " +
                                        ( bFxs ? "analogFxsConfig " : "analogFxoConfig " ) +
                                        std::to_string( pFirst->pConfig->getId() ),
                                    "leave it in one configuration",
                                    { { "first here", placeOf( *pFirst, *port.pInterface ) } } } );
                break;
            }
        }
    }
}

void advisePortNumberTwice( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Board& board : in_subject.vecBoards ) {
        if ( !board.bAnalog )
            continue;
        std::map<unsigned int, const InterfaceConfig*> mapNumbers;
        for ( std::size_t u = board.uFirst; u < board.uEnd; ++u ) {
            const auto* const pPort =
                dynamic_cast<const TirvanaAnalogInterfaceConfig*>( in_subject.vecPorts[u].pInterface );
            if ( !pPort )
                continue;
            const auto [it, bNew] = mapNumbers.emplace( pPort->getTirpipeInterface(), pPort );
            if ( !bNew )
                inout_report.add(
                    { placeOf( *pPort ).attribute( "tirpipeInterface" ),
                      "",
                      nameOf( *it->second ) + " has this number already; give each port the number of its socket",
                      { { "first here", placeOf( *it->second ).attribute( "tirpipeInterface" ) } } } );
        }
    }
}

void advisePhoneNumberTwice( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    std::map<std::string_view, const InterfaceConfig*> mapNumbers;
    for ( const AdviceSubject::Port& port : in_subject.vecPorts ) {
        if ( !isFxs( port ) || *port.pInterface->getPhoneNumber() == '\0' )
            continue;
        const auto [it, bNew] = mapNumbers.emplace( port.pInterface->getPhoneNumber(), port.pInterface );
        if ( !bNew )
            inout_report.add( { placeOf( *port.pInterface ).attribute( "phoneNumber" ),
                                "",
                                nameOf( *it->second ) + " has this number already; give each telephone its own",
                                { { "first here", placeOf( *it->second ).attribute( "phoneNumber" ) } } } );
    }
}

void adviseNoHangUpDetection( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    if ( in_subject.hCallControl.isNull() || in_subject.hCallControl->getAnalogConfig().isNull() )
        return;
    for ( const auto& [uId, hConfig] : in_subject.hCallControl->getAnalogConfig()->getFxoConfigs() ) {
        // The load says so when it leaves out a supervision that it can't read.
        const AnalogDisconnectSupervisionConfig* const pSupervision =
            hConfig->getDisconnectSupervisonConfigHandle().get();
        if ( hConfig->getApplyToAnalogInterfaces().empty() || !pSupervision || hasDetector( *pSupervision ) )
            continue;
        const AdvicePlace place = placeOf( AdviceSubject::AnalogUse{ hConfig.get(), false } );
        const AdvicePlace supervision = place.below( "disconnectSupervision" );
        const AdvicePlace detector = supervision.below( "disconnectDetectors/detector", "sequence" );
        const bool bDetectors = !pSupervision->getDisconnectDetectorsMap().empty();
        // A detector that could not be read has a finding of its own.
        if ( !bDetectors && inout_report.getDocument().find( place.vecKeys.front(), detector.strBelow ).pElement )
            continue;
        const std::string strLines =
            "the lines of analogFxoConfig " + std::to_string( uId ) + " never notice that the far end hung up";
        if ( bDetectors )
            inout_report.add( { detector, "", "an empty sequence detects nothing, and " + strLines } );
        else
            inout_report.add( { supervision, strLines, "add a detector to its disconnectDetectors" } );
    }
}

} // namespace Velquin::Pstn

#include "advice/AdviceSubject.h"

#include <unordered_map>
#include <unordered_set>

#include "callcontrol/isdn/IsdnFasConfig.h"
#include "callcontrol/isdn/IsdnNfasConfig.h"
#include "hardware/InterfaceKind.h"

namespace Velquin::Pstn {

namespace {

template <class TKind, class TLine, class TPhysical>
void gatherBoards( const Config& in_config, bool in_bAnalog, std::vector<AdviceSubject::Board>& inout_vecBoards,
                   std::vector<TLine>& out_vecLines, std::vector<TPhysical>& out_vecPhysicals ) {
    std::unordered_set<const InterfacePhysicalConfig*> setSeen;
    typename TKind::Interfaces vecInterfaces;
    for ( const auto& [uBoardId, hBoard] : TKind::getBoards( in_config ) ) {
        vecInterfaces.clear();
        if ( hBoard.isNull() || !TKind::getInterfaces( *hBoard, vecInterfaces ) )
            continue;
        const std::size_t uFirst = out_vecLines.size();
        for ( const auto& hInterface : vecInterfaces ) {
            if ( hInterface.isNull() || hInterface->getBoardConfig().isNull() )
                continue;
            const auto* const pPhysical = hInterface->getPhysicalConfig().get();
            TLine& line = out_vecLines.emplace_back();
            line.pInterface = hInterface.get();
            line.pPhysical = pPhysical;
            if ( pPhysical && setSeen.insert( pPhysical ).second )
                out_vecPhysicals.push_back( { pPhysical, hInterface.get() } );
        }
        inout_vecBoards.push_back( { hBoard.get(), in_bAnalog, uFirst, out_vecLines.size() } );
    }
}

/// The lines by their interface, to find one of many.
template <class TLine>
class LineFinder {
public:
    explicit LineFinder( std::vector<TLine>& inout_vecLines ) : m_vecLines( inout_vecLines ) {
        for ( std::size_t u = 0; u < inout_vecLines.size(); ++u )
            m_mapLines.emplace( inout_vecLines[u].pInterface, u );
    }

    /// Null for an interface that is on no board of the model.
    TLine* find( const InterfaceConfig* in_pInterface ) const {
        const auto it = m_mapLines.find( in_pInterface );
        return it == m_mapLines.end() ? nullptr : &m_vecLines[it->second];
    }

private:
    std::vector<TLine>& m_vecLines;
    std::unordered_map<const InterfaceConfig*, std::size_t> m_mapLines;
};

} // namespace

AdviceSubject::AdviceSubject( const Config& in_config )
    : config( in_config ), hCallControl( in_config.getCallControlConfig() ) {
    gatherBoards<DigitalKind>( config, false, vecBoards, vecSpans, vecDigitalPhysicals );
    gatherBoards<AnalogKind>( config, true, vecBoards, vecPorts, vecAnalogPhysicals );
    if ( hCallControl.isNull() )
        return;
    gatherDigitalCallControl();
    gatherAnalogCallControl();
}

void AdviceSubject::gatherDigitalCallControl() {
    const LineFinder<Span> spans( vecSpans );
    for ( const auto& [strId, hGroup] : hCallControl->getChannelGroupsConfig() ) {
        for ( const auto& hRange : hGroup->getBChannelRangeConfig() ) {
            if ( Span* const pSpan = spans.find( hRange->getInterfaceConfig().get() ) )
                pSpan->vecRanges.push_back( { hGroup.get(), hRange.get() } );
        }
    }
    if ( hCallControl->getIsdnConfig().isNull() )
        return;
    for ( const auto& [uId, hFas] : hCallControl->getIsdnConfig()->getFasConfigs() ) {
        for ( const auto& hInterface : hFas->getApplyToDigitalInterfaces() ) {
            if ( Span* const pSpan = spans.find( hInterface.get() ) )
                pSpan->vecUses.push_back( { hFas.get(), nullptr } );
        }
    }
    for ( const auto& [uId, hNfas] : hCallControl->getIsdnConfig()->getNfasConfigs() ) {
        for ( const auto& [strInterface, hMember] : hNfas->getMemberInterfaces() ) {
            if ( Span* const pSpan = spans.find( hMember->getInterfaceConfig().get() ) )
                pSpan->vecUses.push_back( { hNfas.get(), hMember.get() } );
        }
    }
}

void AdviceSubject::gatherAnalogCallControl() {
    if ( hCallControl->getAnalogConfig().isNull() )
        return;
    const LineFinder<Port> ports( vecPorts );
    const auto gather = [&ports]( const auto& in_mapConfigs, bool in_bFxs ) {
        for ( const auto& [uId, hConfig] : in_mapConfigs ) {
            for ( const auto& hInterface : hConfig->getApplyToAnalogInterfaces() ) {
                if ( Port* const pPort = ports.find( hInterface.get() ) )
                    pPort->vecUses.push_back( { hConfig.get(), in_bFxs } );
            }
        }
    };
    gather( hCallControl->getAnalogConfig()->getFxoConfigs(), false );
    gather( hCallControl->getAnalogConfig()->getFxsConfigs(), true );
}

} // namespace Velquin::Pstn

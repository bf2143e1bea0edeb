#include "advice/AdviceSubject.h"

#include <algorithm>
#include <numeric>
#include <unordered_set>
#include <utility>

#include "advice/AdviceReport.h"
#include "callcontrol/isdn/IsdnFasConfig.h"
#include "callcontrol/isdn/IsdnNfasConfig.h"
#include "hardware/InterfaceKind.h"

namespace Velquin::Pstn {

namespace {

template <class TKind, class TLine, class TPhysical>
void gatherBoards( const Config& in_config, AdviceReport& in_report, bool in_bAnalog,
                   std::vector<AdviceSubject::Board>& inout_vecBoards, std::vector<TLine>& out_vecLines,
                   std::vector<TPhysical>& out_vecPhysicals ) {
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
            const TPhysical physical{ hInterface->getPhysicalConfig().get(), hInterface.get() };
            TLine& line = out_vecLines.emplace_back();
            line.pInterface = hInterface.get();
            if ( !physical.pConfig || in_report.isAtFault( [&] { return placeOf( physical ); } ) )
                continue;
            line.pPhysical = physical.pConfig;
            if ( setSeen.insert( physical.pConfig ).second )
                out_vecPhysicals.push_back( physical );
        }
        inout_vecBoards.push_back( { hBoard.get(), in_bAnalog, uFirst, out_vecLines.size() } );
    }
}

/// Deals items out to the lines that they belong to, in the order in which they come.
template <class TLine, class TItem>
class Dealer {
public:
    explicit Dealer( std::vector<TLine>& inout_vecLines )
        : m_vecLines( inout_vecLines ), m_vecCounts( inout_vecLines.size() + 1 ) {}

    /// Drops an item of an interface that is on no board of the model.
    void add( const InterfaceConfig* in_pInterface, const TItem& in_item ) {
        if ( const TLine* const pLine = find( in_pInterface ) ) {
            const auto uLine = static_cast<std::size_t>( pLine - m_vecLines.data() );
            m_vecItems.push_back( { uLine, in_item } );
            ++m_vecCounts[uLine + 1];
        }
    }

    /// The line of the interface; null when no board of the model has it. Most interfaces are named in ascending order:
    /// first looks at the last one found, and at the one behind it.
    const TLine* find( const InterfaceConfig* in_pInterface ) {
        for ( std::size_t u = m_uLast; u < m_uLast + 2 && u < m_vecLines.size(); ++u ) {
            if ( m_vecLines[u].pInterface == in_pInterface )
                return &m_vecLines[m_uLast = u];
        }
        if ( !in_pInterface || in_pInterface->getBoardConfig().isNull() )
            return nullptr;
        const auto it = std::lower_bound(
            m_vecLines.begin(), m_vecLines.end(), idOf( *in_pInterface ),
            []( const TLine& in_line, const Id& in_id ) { return idOf( *in_line.pInterface ) < in_id; } );
        if ( it == m_vecLines.end() || it->pInterface != in_pInterface )
            return nullptr;
        m_uLast = static_cast<std::size_t>( it - m_vecLines.begin() );
        return &*it;
    }

    /// @param out_vecItems the items, line by line
    /// @param in_member where each line refers to its own
    void deal( std::vector<TItem>& out_vecItems, std::span<const TItem> TLine::*in_member ) {
        std::partial_sum( m_vecCounts.begin(), m_vecCounts.end(), m_vecCounts.begin() );
        out_vecItems.resize( m_vecItems.size() );
        for ( std::size_t u = 0; u < m_vecLines.size(); ++u )
            m_vecLines[u].*in_member = { out_vecItems.data() + m_vecCounts[u], m_vecCounts[u + 1] - m_vecCounts[u] };
        for ( const auto& [uLine, item] : m_vecItems )
            out_vecItems[m_vecCounts[uLine]++] = item;
    }

private:
    using Id = std::pair<unsigned int, unsigned int>;

    static Id idOf( const InterfaceConfig& in_interface ) {
        return { in_interface.getBoardConfig()->getId(), in_interface.getId() };
    }

    std::vector<TLine>& m_vecLines;
    std::vector<std::pair<std::size_t, TItem>> m_vecItems;
    std::vector<std::size_t> m_vecCounts; ///< of the line before
    std::size_t m_uLast = 0;
};

} // namespace

AdviceSubject::AdviceSubject( const Config& in_config, AdviceReport& in_report )
    : config( in_config ), hCallControl( in_config.getCallControlConfig() ) {
    gatherBoards<DigitalKind>( config, in_report, false, vecBoards, vecSpans, vecDigitalPhysicals );
    gatherBoards<AnalogKind>( config, in_report, true, vecBoards, vecPorts, vecAnalogPhysicals );
    if ( hCallControl.isNull() )
        return;
    if ( !hCallControl->getIsdnConfig().isNull() ) {
        gatherIsdnUses();
        gatherRanges();
    }
    if ( !hCallControl->getAnalogConfig().isNull() )
        gatherAnalogUses();
}

void AdviceSubject::gatherRanges() {
    Dealer<Span, Range> dealer( vecSpans );
    for ( const auto& [strId, hGroup] : hCallControl->getChannelGroupsConfig() ) {
        for ( const auto& hRange : hGroup->getBChannelRangeConfig() ) {
            const Span* const pSpan = dealer.find( hRange->getInterfaceConfig().get() );
            if ( !pSpan )
                continue;
            // The range may outlive an ISDN group that could not be read to its end: then it refers to nothing.
            const auto itUse = std::find_if( pSpan->uses.begin(), pSpan->uses.end(), [&]( const IsdnUse& in_use ) {
                return in_use.pGroup == hRange->getIsdnCommonConfig().get();
            } );
            if ( itUse != pSpan->uses.end() )
                dealer.add( pSpan->pInterface, { hGroup.get(), hRange.get(), &*itUse } );
        }
    }
    dealer.deal( m_vecRanges, &Span::ranges );
}

void AdviceSubject::gatherIsdnUses() {
    Dealer<Span, IsdnUse> dealer( vecSpans );
    for ( const auto& [uId, hFas] : hCallControl->getIsdnConfig()->getFasConfigs() ) {
        for ( const auto& hInterface : hFas->getApplyToDigitalInterfaces() )
            dealer.add( hInterface.get(), { hFas.get(), nullptr } );
    }
    for ( const auto& [uId, hNfas] : hCallControl->getIsdnConfig()->getNfasConfigs() ) {
        for ( const auto& [strInterface, hMember] : hNfas->getMemberInterfaces() )
            dealer.add( hMember->getInterfaceConfig().get(), { hNfas.get(), hMember.get() } );
    }
    dealer.deal( m_vecIsdnUses, &Span::uses );
}

void AdviceSubject::gatherAnalogUses() {
    Dealer<Port, AnalogUse> dealer( vecPorts );
    const auto gather = [&dealer]( const auto& in_mapConfigs, bool in_bFxs ) {
        for ( const auto& [uId, hConfig] : in_mapConfigs ) {
            for ( const auto& hInterface : hConfig->getApplyToAnalogInterfaces() )
                dealer.add( hInterface.get(), { hConfig.get(), in_bFxs } );
        }
    };
    gather( hCallControl->getAnalogConfig()->getFxoConfigs(), false );
    gather( hCallControl->getAnalogConfig()->getFxsConfigs(), true );
    dealer.deal( m_vecAnalogUses, &Port::uses );
}

} // namespace Velquin::Pstn

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "hardware/Config.h"

namespace Velquin::Pstn {

class AdviceReport;
class IsdnNfasGroupMemberConfig;

/// What the rules look at: the model, with what belongs to one interface gathered there. Parts that the model lacks are
/// null, as are faulty physical configurations.
struct AdviceSubject {
    /// That a span is in a FAS or an NFAS group.
    struct IsdnUse {
        const IsdnCommonConfig* pGroup;
        const IsdnNfasGroupMemberConfig* pMember; ///< null in a FAS group
    };
    /// That a port has an FXO or an FXS configuration.
    struct AnalogUse {
        const AnalogCallControlCommonConfig* pConfig;
        bool bFxs;
    };
    /// Channels of a span that an ISDN group put into a channel group.
    struct Range {
        const ChannelGroupConfig* pGroup;
        const BChannelRangeConfig* pRange;
        const IsdnUse* pUse;
    };
    struct Span {
        const DigitalInterfaceConfig* pInterface;
        const DigitalInterfacePhysicalConfig* pPhysical;
        std::span<const IsdnUse> uses; ///< FAS groups first; a group that names the span twice stands there twice
        std::span<const Range> ranges; ///< by channel group, then by channel
    };
    struct Port {
        const AnalogInterfaceConfig* pInterface;
        const AnalogInterfacePhysicalConfig* pPhysical;
        std::span<const AnalogUse> uses; ///< FXO first
    };
    /// A board, and where its interfaces stand among the spans or the ports.
    struct Board {
        const BoardConfig* pBoard;
        bool bAnalog;
        std::size_t uFirst;
        std::size_t uEnd;
    };
    /// A physical configuration, and one of its interfaces.
    template <class TPhysicalConfig>
    struct Physical {
        const TPhysicalConfig* pConfig;
        const InterfaceConfig* pInterface;
    };

    AdviceSubject( const Config& in_config, AdviceReport& in_report );
    AdviceSubject( const AdviceSubject& ) = delete;
    AdviceSubject& operator=( const AdviceSubject& ) = delete;

    const Config& config;
    TSHandle<CallControlConfig> hCallControl; ///< as all that it holds, perhaps null
    std::vector<Board> vecBoards;             ///< digital ones first, each kind ascending by identifier
    std::vector<Span> vecSpans;               ///< in the order of the boards, ascending by identifier
    std::vector<Port> vecPorts;
    std::vector<Physical<DigitalInterfacePhysicalConfig>> vecDigitalPhysicals; ///< each once
    std::vector<Physical<AnalogInterfacePhysicalConfig>> vecAnalogPhysicals;

private:
    void gatherIsdnUses();
    void gatherRanges();
    void gatherAnalogUses();

    // What the lines refer to, line by line: a vector for each line would cost more than all rules.
    std::vector<IsdnUse> m_vecIsdnUses;
    std::vector<Range> m_vecRanges;
    std::vector<AnalogUse> m_vecAnalogUses;
};

} // namespace Velquin::Pstn

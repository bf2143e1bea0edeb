#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hardware/Config.h"

namespace Velquin::Pstn {

/// The model that is checked, and all its interfaces, which it owns: board after board, ascending by identifier.
struct CrossCheckSubject {
    const Config& config;
    std::vector<const AnalogInterfaceConfig*> vecAnalogInterfaces;
    std::vector<const DigitalInterfaceConfig*> vecDigitalInterfaces;

    explicit CrossCheckSubject( const Config& in_config ) noexcept : config( in_config ) {}

    /// Gathers the interfaces.
    /// @return false, after an assertion, when the model is broken; nothing can be asked of it then
    bool gather();
};

/// What the cross-checks found wrong, and with which board or interface.
struct CrossCheckFinding {
    bool bAnalog;
    unsigned int uBoardId;
    std::optional<unsigned int> uInterfaceId; ///< unset when the board itself is meant
    std::string strText;
};
using CrossCheckFindings = std::vector<CrossCheckFinding>;

/// One question about the whole model. Appends what it finds.
using CrossCheck = void ( * )( const CrossCheckSubject& in_subject, CrossCheckFindings& out_findings );

/// All questions, in the order in which they are asked. None costs more than the model is large.
const std::vector<CrossCheck>& getCrossChecks();

} // namespace Velquin::Pstn

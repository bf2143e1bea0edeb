#pragma once

#include <optional>
#include <string>
#include <vector>

#include <velquin/Finding.h>

#include "hardware/Config.h"

namespace Velquin::Pstn {

/// The model that is checked, and all its interfaces: board after board, ascending by identifier. The model owns them.
struct CrossCheckSubject {
    const Config& config;
    std::vector<const AnalogInterfaceConfig*> vecAnalogInterfaces;
    std::vector<const DigitalInterfaceConfig*> vecDigitalInterfaces;

    explicit CrossCheckSubject( const Config& in_config ) noexcept : config( in_config ) {}

    /// Gathers the interfaces.
    /// @return false, after an assertion, when the model is broken; then the checks must not run
    bool gather();
};

/// A fault that a cross-check found, and its board or interface.
struct CrossCheckFinding {
    bool bAnalog;
    unsigned int uBoardId;
    std::optional<unsigned int> uInterfaceId; ///< unset when the fault is the board's
    Fault fault;
    std::string strText;
};
using CrossCheckFindings = std::vector<CrossCheckFinding>;

/// One question about the whole model. Appends the faults that it finds.
using CrossCheck = void ( * )( const CrossCheckSubject& in_subject, CrossCheckFindings& out_findings );

/// All questions, in the order in which they are asked. The cost of each grows with the size of the model, not faster.
const std::vector<CrossCheck>& getCrossChecks();

} // namespace Velquin::Pstn

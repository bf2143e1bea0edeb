#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hardware/Config.h"

namespace Velquin::Pstn {

/// What the cross-checks found wrong, and with which board or interface.
struct CrossCheckFinding {
    bool bAnalog;
    unsigned int uBoardId;
    std::optional<unsigned int> uInterfaceId; ///< unset when the board itself is meant
    std::string strText;
};
using CrossCheckFindings = std::vector<CrossCheckFinding>;

/// One question about the whole model. Appends what it finds.
/// @return false, after an assertion, when the model is broken; nothing more can be asked of it then
using CrossCheck = bool ( * )( const Config& in_config, CrossCheckFindings& out_findings );

/// All questions, in the order in which they are asked. None costs more than the model is large.
const std::vector<CrossCheck>& getCrossChecks();

} // namespace Velquin::Pstn

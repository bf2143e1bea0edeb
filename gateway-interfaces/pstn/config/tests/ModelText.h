#pragma once

#include <string>

#include "hardware/Config.h"

namespace Velquin::Pstn {

/// All that a model holds, a line for each value: "WHERE NAME = VALUE", in a fixed order. Texts stand in quotes,
/// enumerated values are numbers, what refers to something names it. "none" is what is absent.
std::string describeModel( const Config& in_config );

/// The same of boards and interfaces alone, without what is applied to them.
std::string describeBoards( const Config& in_config );

} // namespace Velquin::Pstn

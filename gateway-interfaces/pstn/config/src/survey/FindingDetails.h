#pragma once

#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

/// Adds to findings that are no echoes what only the whole document tells: the first place of what stands twice, and
/// what a reference could name instead. Adds nothing to the findings behind the first hundred.
void addDetails( SurveyRecord& inout_record );

} // namespace Velquin::Pstn

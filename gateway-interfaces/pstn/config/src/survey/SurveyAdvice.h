#pragma once

#include "hardware/Config.h"
#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

/// Adds the advice on what could be read, except where another finding explains what the advice sees. Call it when the
/// echoes are marked and the details added.
void addAdvice( const Config& in_config, SurveyRecord& inout_record );

} // namespace Velquin::Pstn

#pragma once

#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

/// Makes one finding of all attributes that one element lacks: the first names them all, the others are its echoes.
void joinMissingAttributes( SurveyRecord& inout_record );

} // namespace Velquin::Pstn

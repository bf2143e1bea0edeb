#pragma once

#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

/// Makes one finding of all attributes that an element lacks, and one of all child elements: the first names them all,
/// the others are its echoes.
void joinMissingParts( SurveyRecord& inout_record );

} // namespace Velquin::Pstn

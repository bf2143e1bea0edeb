#pragma once

#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

/// Marks the findings that follow from another one, once everything is known: what libxml2 says where the schema's
/// advice explains it, what a reader says again, references to what could not be read, and what such a reference would
/// have given to an interface.
void markEchoes( SurveyRecord& inout_record );

} // namespace Velquin::Pstn

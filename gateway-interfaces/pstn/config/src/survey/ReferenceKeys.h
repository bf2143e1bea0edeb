#pragma once

#include <string>

#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

// Keys of what references name: boards, their interfaces, channel groups. Two texts of one identifier have one key.

/// "analog " or "digital ": boards of the two kinds are numbered apart.
std::string describeKind( const xmlNode* in_pElement );

/// A board, or one of its interfaces, of the element's kind.
std::string describeLine( const xmlNode* in_pElement, const std::string& in_strBoard,
                          const std::string& in_strInterface );

/// What the reference names: a board, or one of its interfaces.
std::string describeReference( const xmlNode* in_pReference );

/// Whether the finding is about a reference to nothing.
bool isReferenceRule( const SurveyedFinding& in_item );

/// What the reference of such a finding names, without kind: the name that tells the kind may be misspelt.
std::string describeTarget( const SurveyedFinding& in_item );

/// The rule of references to nothing, for an element that stands where a board, an interface or a channel group is
/// declared; else null.
const char* getReferenceRule( const xmlNode* in_pElement );

/// What such an element declares, without kind.
std::string describeDeclaration( const xmlNode* in_pElement );

} // namespace Velquin::Pstn

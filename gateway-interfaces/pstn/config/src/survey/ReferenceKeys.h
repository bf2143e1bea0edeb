#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "survey/SurveyRecord.h"

namespace Velquin::Pstn {

// Keys of what references name: boards, their interfaces, channel groups. Two texts of one identifier have one key.

/// An identifier of which only the one who wrote the file knows what it should be.
inline constexpr const char* ANY = "*";

/// The key of a board or a channel group or, if an interface is given, of that.
std::string joinIdentifiers( const std::string& in_strOuter, const std::string& in_strInterface );

/// "analog " or "digital ": boards of the two kinds are numbered apart.
std::string describeKind( const xmlNode* in_pElement );

/// A board, or one of its interfaces, of the element's kind.
std::string describeLine( const xmlNode* in_pElement, const std::string& in_strBoard,
                          const std::string& in_strInterface );

/// What the reference names: a board, or one of its interfaces.
std::string describeReference( const xmlNode* in_pReference );

/// Whether the finding is about a reference to nothing.
bool isReferenceRule( const SurveyedFinding& in_item );

/// Whether the finding is about the D-channel that a line has, or hasn't.
bool isAboutDChannel( const SurveyedFinding& in_item );

/// The identifier of the board whose interface the reference of a finding names.
std::string getNamedBoard( const SurveyedFinding& in_item );

/// What the reference of a finding about one names, without kind: the name that tells the kind may be misspelt.
std::string describeTarget( const SurveyedFinding& in_item );

/// The same, and what a declaration with ANY identifier would be.
std::vector<std::string> describeTargets( const SurveyedFinding& in_item );

/// The rule of references to nothing, for an element that stands where a board, an interface or a channel group is
/// declared; else empty.
std::string_view getReferenceRule( const xmlNode* in_pElement );

/// What such an element declares, without kind.
/// @param in_bKnown whether its identifier is what it should be
std::string describeDeclaration( const xmlNode* in_pElement, bool in_bKnown );

} // namespace Velquin::Pstn

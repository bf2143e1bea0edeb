#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "document/SyntaxScan.h"

namespace Velquin::Pstn {

constexpr std::string_view XML_BLANKS = " \t\r\n";

std::string joinTexts( std::initializer_list<std::string_view> in_listParts );

/// The name that a text begins with; empty when it begins with none.
std::string_view readName( std::string_view in_strText );

/// The first character of a text for people: an odd one as U+00A0.
std::string nameCharacter( std::string_view in_strText );

/// The first character that no XML may hold, or that isn't in the encoding of the text.
std::optional<SyntaxFinding> findStrangeCharacter( const IllFormedText& in_text );

/// What is wrong with the first wrong reference (&name; or &#number;) of a text.
std::optional<SyntaxFinding> findWrongReference( std::string_view in_strText );

/// The end of a document type; its subset may hold what looks like tags. The end of the text when it has none.
std::size_t findEndOfDocumentType( std::string_view in_strText, std::size_t in_uBegin );

} // namespace Velquin::Pstn

#pragma once

#include <string_view>

#include <libxml/xmlerror.h>

#include <velquin/Finding.h>

namespace Velquin::Pstn {

/// What is unfinished where a parser gives up.
enum class Unfinished { NOTHING, START_TAG, VALUE, COMMENT };

/// Says of an ill-formed file in the words of people what is wrong and what to do: libxml2's words are those of a
/// parser. Keeps the message that it has no better words for. The log line stays.
void explainSyntaxFault( const xmlError& in_error, Finding& inout_finding );

/// What is unfinished, by the log line of a finding about an ill-formed file. The mistake is where that begins: the
/// parser stops behind it, often lines later.
Unfinished getUnfinished( std::string_view in_strText );

} // namespace Velquin::Pstn

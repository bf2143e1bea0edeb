#pragma once

#include <string_view>

#include <libxml/xmlerror.h>

#include <velquin/Finding.h>

namespace Velquin::Pstn {

/// How the mistake is found that made libxml2 refuse a file: libxml2 stops behind it, often lines later.
struct SyntaxPlace {
    enum class How {
        TEXT,        ///< the text shows it, at the latest on libxml2's line
        ANYWHERE,    ///< the text shows it; libxml2's line is that of what it had read by then
        DECLARATION, ///< it is the last declaration up to libxml2's line
        REPORTED,    ///< libxml2 knows best
    };
    How eHow = How::TEXT;
    std::string_view strBegin{}; ///< how a declaration begins
    std::string_view strHint{};  ///< what to do about it
};

/// Says of an ill-formed file in the words of people what is wrong and what to do: libxml2's words are those of a
/// parser. Keeps the message that it has no better words for. The log line stays.
void explainSyntaxFault( const xmlError& in_error, Finding& inout_finding );

/// How to find the mistake, by the log line of a finding about an ill-formed file.
SyntaxPlace getSyntaxPlace( std::string_view in_strText );

} // namespace Velquin::Pstn

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Velquin::Pstn {

/// What makes a text ill-formed, in the words of people. The places are pieces of the text.
struct SyntaxFinding {
    std::string_view strPlace;
    std::string strMessage;
    std::string strHint;
    std::string strLabel{}; ///< of the other place that belongs to it; empty when there is none
    std::string_view strOther{};
};

/// A text that libxml2 calls ill-formed.
struct IllFormedText {
    std::string_view strText;                        ///< in UTF-8, or what was taken for that
    std::string_view strEncoding;                    ///< that it names in its first line; empty for none
    bool bUtf16 = false;                             ///< whether the file is in UTF-16
    std::size_t uConverted = std::string_view::npos; ///< where bytes begin that aren't in the file's encoding
};

/// Finds the first thing that makes a text ill-formed. It judges nothing: it only says in other words, and at the place
/// where the mistake begins, what libxml2 refused. Knows no namespaces, and nothing of what follows the root element.
std::optional<SyntaxFinding> findSyntaxFault( const IllFormedText& in_text );

} // namespace Velquin::Pstn

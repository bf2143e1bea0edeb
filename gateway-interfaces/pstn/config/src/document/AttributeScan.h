#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/SyntaxScan.h"

namespace Velquin::Pstn {

/// An attribute as it stands in a text.
struct ScannedAttribute {
    std::string_view strName;
    std::string_view strValue;
    std::string_view strPlace; ///< from the name to the closing quote
};

/// What became of a scan of attributes. Exactly one holds: there is a finding; or the text ends inside something; or
/// uEnd is where the tag ends.
struct AttributeScan {
    std::vector<ScannedAttribute> vecAttributes;
    std::size_t uEnd = 0;
    std::string strEndsInside;
    std::optional<SyntaxFinding> finding;
};

/// Scans attributes up to a >, /> or ?.
/// @param in_strTag what they belong to: "the start tag of a"
/// @param in_strEnd what should end it: "?>"
AttributeScan scanAttributes( std::string_view in_strText, std::size_t in_uFrom, const std::string& in_strTag,
                              std::string_view in_strEnd );

/// The first attribute of a tag that has the name of another in front of it.
std::optional<SyntaxFinding> findAttributeTwice( const std::vector<ScannedAttribute>& in_vecAttributes );

/// What is wrong with the attributes of an XML declaration.
/// @param in_strBegin `<?xml` of the declaration
/// @param in_bUtf16 whether the file is in UTF-16
std::optional<SyntaxFinding> findWrongDeclaration( std::string_view in_strBegin,
                                                   const std::vector<ScannedAttribute>& in_vecAttributes,
                                                   bool in_bUtf16 );

} // namespace Velquin::Pstn

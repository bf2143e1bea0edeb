#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Velquin::Pstn {

/// What a text is that stands where only elements may.
struct StrayText {
    std::string strChild; ///< the child of which it seems to be the tag; empty when none is known
    std::string strHint;  ///< what to do about it
};

/// @param in_vecNames the children that may stand there
/// @param in_vecMissing those of them that are missing
StrayText explainStrayText( std::string_view in_strText, const std::vector<std::string>& in_vecNames,
                            const std::vector<std::string>& in_vecMissing );

} // namespace Velquin::Pstn

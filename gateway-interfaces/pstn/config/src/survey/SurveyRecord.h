#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <velquin/Finding.h>

#include "document/Element.h"

namespace Velquin::Pstn {

/// A rule of the advice that a survey also gives to what a load refuses since another group has the span.
inline constexpr std::string_view SPAN_IN_TWO_ISDN_GROUPS = "span-in-two-isdn-groups";

/// A finding of a survey, and the element that it is about; null when it is about none.
struct SurveyedFinding {
    Finding finding;
    const xmlNode* pElement = nullptr;
    bool bOfReader = false; ///< whether a reader found it, not the parser or the schema

    /// Whether it is a mistake of its own, as far as is known.
    bool isMain() const noexcept { return !finding.bEcho && !finding.strRule.empty(); }
    bool is( std::string_view in_strRule ) const noexcept { return finding.strRule == in_strRule; }
    /// Whether it is about an element that is not read: one whose name is only misspelt has the name that is meant.
    bool isUnread() const noexcept {
        return finding.eKind == Finding::Kind::UNKNOWN_ELEMENT && pElement &&
               finding.strAttribute == getElementName( pElement );
    }
};

/// What a survey gathers while it reads a document.
struct SurveyRecord {
    static constexpr std::size_t MAX_FINDINGS = 10'000; ///< a file made to harm could have one on each line

    const xmlNode* pRoot = nullptr;
    std::vector<SurveyedFinding> vecFindings; ///< in the order in which they came
    std::vector<const xmlNode*> vecLost;      ///< entries that were left out, and elements that nobody reads
    std::vector<const xmlNode*> vecFaulty;    ///< entries that lack an attribute in the model
};

} // namespace Velquin::Pstn

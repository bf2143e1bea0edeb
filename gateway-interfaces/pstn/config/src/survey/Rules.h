#pragma once

#include <span>
#include <string_view>

#include "../PstnConfigExport.h"
#include "../RuleNames.h"

namespace Velquin::Pstn {

/// How much a broken rule hurts.
enum class Severity {
    FAULT,   ///< the gateway refuses the file, or leaves out a part of it
    WARNING, ///< the gateway loads the file, and something will not work as meant
    NOTE,    ///< the gateway loads the file; somebody may have meant something else
};

/// What can be wrong with a configuration.
struct Rule {
    const char* szName;        ///< stable: "missing-attribute"
    Severity eSeverity;        ///< the usual one
    const char* szTitle;       ///< one line, without a point at its end
    const char* szExplanation; ///< a paragraph: why it hurts, and what to do
};

/// All rules: those of a load, in the order in which a load applies them, and then those of the advice.
VELQUIN_PSTN_CONFIG_EXPORT std::span<const Rule> getRules() noexcept;

/// The rule of that name; null for an unknown name.
VELQUIN_PSTN_CONFIG_EXPORT const Rule* findRule( std::string_view in_strName ) noexcept;

} // namespace Velquin::Pstn

#pragma once

#include <span>
#include <vector>

#include <velquin/Finding.h>

#include "hardware/Config.h"
#include "reading/XmlNodeFwd.h"
#include "survey/Rules.h"

namespace Velquin::Pstn {

/// The rules of the advice, in the order of their table.
VELQUIN_PSTN_CONFIG_EXPORT std::span<const Rule> getAdviceRules() noexcept;

/// What a careful colleague would say of a model that loads, or of the part that could be read. Logs nothing.
/// @param in_pRoot the root element from which the model was read
/// @param in_faulty elements of which the model lacks an attribute: no advice stands on what the model has instead
/// @return findings at WARNING, or at INFO for notes, with file, line, element, attribute, value and hint
VELQUIN_PSTN_CONFIG_EXPORT std::vector<Finding> advise( const Config& in_config, const xmlNode* in_pRoot,
                                                        std::span<const xmlNode* const> in_faulty = {} );

} // namespace Velquin::Pstn

#pragma once

#include <nlohmann/json.hpp>

#include <velquin/pstn/hardware/Config.h>

namespace Velquin::Pstn {

/// Keeps the order in which keys are added. It looks for a key from its first one on.
using Json = nlohmann::ordered_json;

/// All that a model holds. docs/show-json.md says how it is laid out.
/// @throws std::bad_alloc
Json describeModel( const Config& in_config );

/// The sections "analogBoards" and "digitalBoards" alone, without what is applied to interfaces.
/// @throws std::bad_alloc
Json describeBoards( const Config& in_config );

/// Whether the entry of an object of a description lists the settings that have their defaults.
inline bool isListOfDefaults( const std::string& in_strKey, const Json& in_value ) {
    return in_strKey == "defaults" && in_value.is_array(); // something may be called "defaults"
}

/// The description as JSON text. What is not UTF-8 becomes replacement characters.
/// @param in_nIndent blanks for each level; -1 is all on one line
inline std::string toText( const Json& in_value, int in_nIndent = -1 ) {
    return in_value.dump( in_nIndent, ' ', false, Json::error_handler_t::replace );
}

} // namespace Velquin::Pstn

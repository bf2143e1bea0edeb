#pragma once

/// The stable names of what can be wrong with a configuration. getRules() has a title and an explanation of each.
namespace Velquin::Pstn::Rules {

// The file and its schema
inline constexpr const char* UNREADABLE_FILE = "unreadable-file";
inline constexpr const char* ILL_FORMED = "ill-formed";
inline constexpr const char* TOO_LARGE = "too-large";
inline constexpr const char* UNUSABLE_SCHEMA = "unusable-schema";

// Elements and attributes
inline constexpr const char* AGAINST_SCHEMA = "against-schema";
inline constexpr const char* MISSING_ATTRIBUTE = "missing-attribute";
inline constexpr const char* UNKNOWN_ATTRIBUTE = "unknown-attribute";
inline constexpr const char* INVALID_VALUE = "invalid-value";
inline constexpr const char* MISSING_ELEMENT = "missing-element";
inline constexpr const char* UNKNOWN_ELEMENT = "unknown-element";
inline constexpr const char* UNEXPECTED_TEXT = "unexpected-text"; ///< only a survey reports it
inline constexpr const char* INVALID_SEQUENCE = "invalid-sequence";

// References
inline constexpr const char* UNKNOWN_BOARD = "unknown-board";
inline constexpr const char* UNKNOWN_INTERFACE = "unknown-interface";
inline constexpr const char* UNKNOWN_CHANNEL_GROUP = "unknown-channel-group";

// What stands twice
inline constexpr const char* IDENTIFIER_TWICE = "identifier-twice";
inline constexpr const char* CHANNEL_TWICE = "channel-twice";
inline constexpr const char* TIRPIPE_TWICE = "tirpipe-twice";
inline constexpr const char* PHYSICAL_CONFIG_TWICE = "physical-config-twice";
inline constexpr const char* NFAS_MEMBER_TWICE = "nfas-member-twice";

// What doesn't fit together
inline constexpr const char* NO_D_CHANNEL = "no-d-channel";
inline constexpr const char* UNUSED_D_CHANNEL = "unused-d-channel";
inline constexpr const char* CHANNELS_SWAPPED = "channels-swapped";
inline constexpr const char* NO_PHYSICAL_CONFIG = "no-physical-config";
inline constexpr const char* NO_CALL_CONTROL = "no-call-control";

// The gateway itself
inline constexpr const char* MISSING_PARAMETER = "missing-parameter";
inline constexpr const char* UNKNOWN_PARAMETER = "unknown-parameter"; ///< the library reports none; a program may
inline constexpr const char* INTERNAL = "internal";

/// The rule that an interface without D-channel breaks.
/// @param in_bPhysicalConfig whether the interface has a physical configuration
constexpr const char* withoutDChannel( bool in_bPhysicalConfig ) noexcept {
    return in_bPhysicalConfig ? NO_D_CHANNEL : NO_PHYSICAL_CONFIG;
}

} // namespace Velquin::Pstn::Rules

#pragma once

#include <array>
#include <string>

#include "ChannelMap.h"

/// A colour of a channel group. The colour-blind can tell them apart (the palette of Okabe and Ito, without black).
struct GroupColour {
    const char* szFill;
    const char* szInk; ///< of a text on it
    int nTerminal;     ///< the nearest of a terminal's 256 colours
};

inline constexpr std::array<GroupColour, 7> GROUP_COLOURS{ {
    { "#56b4e9", "#000", 74 },
    { "#e69f00", "#000", 214 },
    { "#009e73", "#000", 36 },
    { "#cc79a7", "#000", 175 },
    { "#d55e00", "#000", 166 },
    { "#0072b2", "#fff", 25 },
    { "#f0e442", "#000", 227 },
} };
/// Plain, striped, dotted: where the colours begin anew, the pattern changes.
inline constexpr std::size_t GROUP_PATTERNS = 3;

inline std::size_t getColour( std::size_t in_uGroup ) {
    return in_uGroup % GROUP_COLOURS.size();
}
inline std::size_t getPattern( std::size_t in_uGroup ) {
    return in_uGroup / GROUP_COLOURS.size() % GROUP_PATTERNS;
}

/// What stands for a group where its name has no room: "A" to "Z" without "D", then "AA". D is the D-channel.
std::string getCode( std::size_t in_uGroup );
/// "A", "A+B", "D" or "!"; empty for a run that has only its colour.
std::string getMark( const ChannelMap::Run& in_run );
/// The mark, and the names of the groups: "A carrier-in".
std::string getLabel( const ChannelMap& in_map, const ChannelMap::Run& in_run );

/// What a look means, for a legend; empty for groups, which the legend lists.
std::string getMeaning( ChannelMap::Look in_eLook );
inline constexpr std::array<ChannelMap::Look, 5> LOOKS_OF_LEGEND{ ChannelMap::Look::FREE, ChannelMap::Look::FRAMING,
                                                                  ChannelMap::Look::D_CHANNEL, ChannelMap::Look::SHARED,
                                                                  ChannelMap::Look::CONFLICT };

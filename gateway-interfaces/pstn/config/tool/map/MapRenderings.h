#pragma once

#include <string>

#include "ChannelMap.h"

// Each yields the whole rendering in UTF-8. The heading is the name of the file that was loaded.

/// Block characters for a terminal, at most 80 columns wide but for long names of groups.
/// @param in_bColour whether there are colours, too; it reads without
std::string renderText( const ChannelMap& in_map, const std::string& in_strHeading, bool in_bColour );
/// A picture that reads on a light and on a dark background.
std::string renderSvg( const ChannelMap& in_map, const std::string& in_strHeading );
/// A page that loads nothing else, with search and a filter by group.
std::string renderHtml( const ChannelMap& in_map, const std::string& in_strHeading );

#pragma once

#include <string>

/// What --color takes.
inline constexpr const char* COLOUR_CHOICES[] = { "auto", "always", "never" };

/// Whether to write colours to standard output: "always", "never", or "auto": on a terminal, unless the environment has
/// a NO_COLOR that isn't empty.
bool wantsColour( const std::string& in_strChoice );

bool isOutputTerminal();
bool isErrorTerminal();

/// Characters on a line of the terminal that shows standard output or standard error; 100 when neither is one.
unsigned int getTerminalWidth();

/// Lets standard input hand over its bytes as they are.
void setBinaryInput();

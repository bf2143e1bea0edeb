#pragma once

#include <string>
#include <utility>
#include <vector>

/// What --color takes.
inline constexpr const char* COLOUR_CHOICES[] = { "auto", "always", "never" };

/// Whether to write colours to standard output: "always", "never", or "auto": on a terminal, unless the environment has
/// a NO_COLOR that isn't empty.
bool wantsColour( const std::string& in_strChoice );

bool isOutputTerminal();
bool isErrorTerminal();

/// Characters on a line of the terminal that shows standard output or standard error; 100 when neither is one.
unsigned int getTerminalWidth();

/// While it lives, the console shows UTF-8 and colours. Does nothing where that needs no asking, or without console.
class Utf8Console {
public:
    Utf8Console();
    Utf8Console( const Utf8Console& ) = delete;
    Utf8Console& operator=( const Utf8Console& ) = delete;
    ~Utf8Console();

private:
    [[maybe_unused]] unsigned int m_uCodePage = 0;           ///< what it showed before
    std::vector<std::pair<void*, unsigned long>> m_vecModes; ///< of its outputs, before
};

/// Lets standard input hand over its bytes as they are.
void setBinaryInput();

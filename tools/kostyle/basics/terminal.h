// The terminal that a command runs in.
#pragma once

#include <cstddef>
#include <optional>

namespace tool {

/// Whether the standard output is a terminal that takes colours and nobody asked for none (NO_COLOR).
bool takesColors();

/// How many columns may be printed: as COLUMNS says, or else what the terminal has. None when the
/// standard output is no terminal.
std::optional<std::size_t> outputWidth();

/// How many columns stderr has; none when it is no terminal that can go back in a line.
std::optional<std::size_t> progressWidth();

/// Whether somebody sits there who can be asked.
bool canAsk();

}  // namespace tool

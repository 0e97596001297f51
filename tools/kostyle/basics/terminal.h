// The terminal that a command prints to.
#pragma once

namespace tool {

/// Whether the standard output is a terminal that takes colours and nobody asked for none (NO_COLOR).
bool takesColors();

}  // namespace tool

// What a command prints.
#pragma once

#include <string_view>

namespace tool {

/// Prints bytes as they are, line ends too.
void printBytes(std::string_view bytes);

/// Throws Refused when something that was printed cannot be written.
void flushOutput();

}  // namespace tool

// What a command prints.
#pragma once

namespace tool {

/// Throws Refused when something that was printed cannot be written.
void flushOutput();

}  // namespace tool

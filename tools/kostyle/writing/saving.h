// Writing a mutable style to a file that can be read again.
#pragma once

#include <kostyle/kostyle.h>

#include "basics/paths.h"
#include "writing/mutable_style.h"

namespace tool {

/// What was written but is not read from the file.
struct Losses {
  bool emptyEffects;
  bool sameNames;  // effects or parameters whose names readers take for one
};

/// Writes a new user style to the manager's user directory, reads it again and prints its identifier
/// and path, a tab between them; or leaves nothing. Throws Refused.
Losses saveNew(const MutableStyle& mutableStyle, const fs::path& directory, bool pretty);

/// Throws Refused when a file could not hold the mutable style, or could not be read again.
void requireWritable(KoStyleStyle* mutableStyle);

/// Prints identifier and path, a tab between them. Throws Refused.
void printWritten(TextView id, const fs::path& path);

}  // namespace tool

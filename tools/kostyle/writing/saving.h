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

/// Does the same over a user style of the user directory, or leaves its file as it was. Throws Refused.
Losses saveOver(const MutableStyle& mutableStyle, KoStyleStyle* target, bool pretty);

}  // namespace tool

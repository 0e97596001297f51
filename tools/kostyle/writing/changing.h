// Changing a user style in its file.
#pragma once

#include <kostyle/kostyle.h>
#include <chrono>

#include "writing/style_edits.h"

namespace tool {

/// Puts the change into the style's file, whatever else is in it, and prints its identifier and path;
/// or leaves the file as it was and throws Refused or WrongUse. `limit` is how long other programs that
/// use the file are waited for.
void changeStyle(KoStyleStyle* style, const StyleEdits& edits, std::chrono::milliseconds limit);

}  // namespace tool

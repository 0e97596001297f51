// Changing a style as a command line asks for.
#pragma once

#include <kostyle/kostyle.h>

#include <chrono>

#include "writing/own_form.h"
#include "writing/requested_change.h"

namespace tool {

/// A style file's content with a change that fits the style in it. `path` is for messages.
NewContent changedContent(const fs::path& path, const std::string& before,
                          const RequestedChange& requested, const StyleEdits& edits);

/// Puts the change into the style's file, whatever else is in it, and prints its identifier and path;
/// or leaves the file as it was and throws Refused or WrongUse. `limit` is how long other programs that
/// use the file are waited for.
void changeStyle(KoStyleStyle* style, const StyleEdits& edits, std::chrono::milliseconds limit);

}  // namespace tool

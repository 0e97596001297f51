// Editing a style's file as a text.
#pragma once

#include <chrono>

#include "basics/directories.h"

namespace tool {

/// Lets the user edit the file and writes what comes of it, with its identifier and path; or leaves the
/// file as it was and throws Refused, which tells where the text is that was edited. No other style of
/// the directories may have the identifier; without any, of the file's folder. `limit` is how long
/// other programs that use the file are waited for.
void editStyle(const fs::path& path, const StyleDirectories& directories,
               std::chrono::milliseconds limit);

}  // namespace tool

// The style files that arguments name.
#pragma once

#include <string>

#include "basics/directories.h"

namespace tool {

struct NamedFile {
  fs::path path;
  bool isSystemStyle = false;  // found by its identifier among these
};

/// A path to a file, or else the identifier of a style in the directories. Throws Refused and WrongUse.
NamedFile namedFile(const std::string& argument, const StyleDirectories& directories);

/// Throws Refused, with the reason, unless a regular file stands at a path or where its link leads.
void requireRegularFile(const fs::path& path);

}  // namespace tool

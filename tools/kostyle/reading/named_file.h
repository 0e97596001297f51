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

}  // namespace tool

// The style files that arguments name.
#pragma once

#include <string>

#include "basics/directories.h"
#include "reading/manager.h"

namespace tool {

/// Whether an argument is the path of a file, and not an identifier among the directories. Throws
/// Refused and WrongUse when it can be neither.
bool namesFile(const std::string& argument, const StyleDirectories& directories);

/// The style whose identifier an argument is, since it is no file's path. Throws Refused.
KoStyleStyle* namedStyle(const std::string& argument, const Manager& manager);

struct NamedFile {
  fs::path path;
  bool isSystemStyle = false;  // found by its identifier among these
};

/// A path to a file, or else the identifier of a style in the directories. Throws Refused and WrongUse.
NamedFile namedFile(const std::string& argument, const StyleDirectories& directories);

}  // namespace tool

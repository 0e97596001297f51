// Paths between the command line, the file system and the library.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "basics/text.h"

namespace tool {

namespace fs = std::filesystem;

/// A path as an argument gives it.
fs::path pathOf(std::string_view argument);

/// A path that the library returned.
fs::path pathOf(TextView path);

/// For messages.
std::string shownPath(const fs::path& path);

/// As the library takes it: on Windows absolute and with backslashes.
Text libraryPath(const fs::path& path);

bool isDirectory(const fs::path& path);

/// Why no regular file stands at a path or where its link leads; empty when one does.
std::string whyNoRegularFile(const fs::path& path);

/// The deepest directory on the way to `path` that exists, `path` itself included. Throws Refused when
/// there is no working directory that a relative path could start from.
fs::path existingPart(const fs::path& path);

/// An empty directory that is removed with all that was put into it.
class TemporaryDirectory {
 public:
  /// Throws Refused.
  TemporaryDirectory();
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory();

  const fs::path& path() const { return path_; }

  /// Leaves it where it is after all.
  void keep() { isKept_ = true; }

 private:
  fs::path path_;
  bool isKept_ = false;
};

/// The directories that are missing on the way to a path. Those that come into being while the object
/// lives and are empty at its end are removed again, unless keep() was called.
class MissingDirectories {
 public:
  explicit MissingDirectories(const fs::path& path);
  MissingDirectories(const MissingDirectories&) = delete;
  MissingDirectories& operator=(const MissingDirectories&) = delete;
  ~MissingDirectories();

  void keep() { deepestFirst_.clear(); }

 private:
  std::vector<fs::path> deepestFirst_;
};

}  // namespace tool

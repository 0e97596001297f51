// The style directories that a command line names.
#pragma once

#include <optional>
#include <vector>

#include "basics/paths.h"

namespace CLI {
class App;
}

namespace tool {

struct StyleDirectories {
  std::optional<fs::path> system;
  std::optional<fs::path> user;
  std::vector<fs::path> systemExtra;
  std::vector<fs::path> userExtra;
};

/// Adds --system, --user, --system-extra and --user-extra, which write to `directories`.
void addDirectoryOptions(CLI::App& command, StyleDirectories& directories);

/// Throws WrongUse when a directory does not exist; creates none.
void requireExisting(const StyleDirectories& directories);

/// As requireExisting(), but the user directory may be missing.
void requireExistingButUser(StyleDirectories directories);

}  // namespace tool

// What stands on disk, to compare.
#pragma once

#include <map>
#include <string>

#include "support/temporary_directory.h"

namespace test {

/// The files of a folder with their bytes.
inline std::map<std::string, std::string> filesOf(const fs::path& folder) {
  std::map<std::string, std::string> files;
  for (const std::string& name : entryNames(folder)) files[name] = readFile(folder / name);
  return files;
}

}  // namespace test

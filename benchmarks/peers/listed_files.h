// The paths of a directory's files, for peers that are handed them and only read.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace bench {

inline std::vector<std::string> listedFiles(const std::filesystem::path& directory) {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    paths.push_back(entry.path().string());
  }
  return paths;
}

}  // namespace bench

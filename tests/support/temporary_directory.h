// A folder that exists while the object lives.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "support/text.h"

namespace test {

namespace fs = std::filesystem;

/// A path as the library takes it.
inline Text pathText(const fs::path& path) {
#if defined(_WIN32)
  return path.native();
#else
  return text(path.native());
#endif
}

inline void writeFile(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

inline std::string readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path.string());
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

/// The names of a folder's entries, sorted.
inline std::vector<std::string> entryNames(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder))
    names.push_back(entry.path().filename().u8string());
  std::sort(names.begin(), names.end());
  return names;
}

class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::random_device random;
    do {
      path_ = fs::temp_directory_path() / ("kostyle-test-" + std::to_string(random()));
    } while (!fs::create_directory(path_));
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  const fs::path& path() const { return path_; }
  fs::path operator/(const fs::path& relative) const { return path_ / relative; }

  /// Makes a folder with its parents and returns its path.
  fs::path folder(const fs::path& relative) const {
    fs::create_directories(path_ / relative);
    return path_ / relative;
  }

 private:
  fs::path path_;
};

}  // namespace test

// A folder for what a workload writes; it goes with its content.
#pragma once

#include <filesystem>

namespace bench {

class WrittenFolder {
 public:
  explicit WrittenFolder(std::filesystem::path path) : path_(std::move(path)) {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  WrittenFolder(const WrittenFolder&) = delete;
  WrittenFolder& operator=(const WrittenFolder&) = delete;
  ~WrittenFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace bench

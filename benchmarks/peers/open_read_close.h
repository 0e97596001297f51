// The least that any reader does: every file is opened, read into a buffer and closed.
#pragma once

#include <cstdio>
#include <stdexcept>

#include "peers/listed_files.h"

namespace bench {

class OpenReadClose {
 public:
  explicit OpenReadClose(const std::filesystem::path& directory)
      : paths_(listedFiles(directory)), buffer_(1U << 20) {}

  std::size_t read() {
    for (const std::string& path : paths_) {
      std::FILE* const file = std::fopen(path.c_str(), "rb");
      if (!file) throw std::runtime_error("cannot open " + path);
      bytes_ += std::fread(buffer_.data(), 1, buffer_.size(), file);
      std::fclose(file);
    }
    return bytes_ ? paths_.size() : 0;
  }

 private:
  std::vector<std::string> paths_;
  std::vector<char> buffer_;
  std::size_t bytes_ = 0;
};

}  // namespace bench

// A file that is being made, in a folder that is made with it.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace bench {

class OutputFile {
 public:
  explicit OutputFile(const std::filesystem::path& path) {
    std::filesystem::create_directories(path.parent_path());
    file_.reset(std::fopen(path.string().c_str(), "wb"));
    if (!file_) throw std::runtime_error("cannot write " + path.string());
  }

  std::FILE* get() const { return file_.get(); }
  void write(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), file_.get()) != text.size()) {
      throw std::runtime_error("cannot write all of a file");
    }
  }

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace bench

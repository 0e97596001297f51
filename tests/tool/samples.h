// The sample styles of these tests, and what the tool is to print about them.
#pragma once

#include "tool/tool.h"

namespace test {

/// While the object lives, the working directory is another.
class OtherWorkingDirectory {
 public:
  explicit OtherWorkingDirectory(const fs::path& path) : before_(fs::current_path()) {
    fs::current_path(path);
  }
  OtherWorkingDirectory(const OtherWorkingDirectory&) = delete;
  OtherWorkingDirectory& operator=(const OtherWorkingDirectory&) = delete;
  ~OtherWorkingDirectory() { fs::current_path(before_); }

 private:
  fs::path before_;
};

/// From the folder of these tests, so that no path depends on the machine.
inline Outcome runInSamples(const Arguments& arguments) {
  const std::string program = fs::absolute(fs::u8path(KOSTYLE_TOOL)).u8string();
  const OtherWorkingDirectory directory(fs::u8path(KOSTYLE_TOOL_TESTS));
  return run(program, arguments);
}

inline std::string golden(const std::string& name) {
  return readPrinted(fs::u8path(KOSTYLE_TOOL_TESTS) / "golden" / name);
}

}  // namespace test

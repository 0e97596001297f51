// One kostyle at a time changes the files of a folder, so that no change is lost to another.
#pragma once

#include <chrono>
#include <memory>

#include "basics/paths.h"
#include "writing/system_files.h"

namespace tool {

class FolderLock {
 public:
  /// Of the file that stands in the folder meanwhile.
  static constexpr const char* name = "kostyle.lock";

  /// Waits while another process has the lock, and throws Refused when it still has it at the limit.
  FolderLock(const fs::path& folder, std::chrono::milliseconds limit);

 private:
  std::unique_ptr<HeldFile> file_;
};

/// Throws Refused when no file can be made in a folder, so that none in it can be replaced.
void requireWritableFolder(const fs::path& folder);

}  // namespace tool

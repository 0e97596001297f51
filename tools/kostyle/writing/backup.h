// A second name for a file that is about to be replaced.
#pragma once

#include "basics/paths.h"

namespace tool {

/// Lies beside the file, so that restoring takes no space, under a name that is no style file's. Is
/// removed at the end of the object, unless the file could not be restored.
class Backup {
 public:
  /// Throws Refused, and leaves nothing.
  explicit Backup(const fs::path& file);
  Backup(const Backup&) = delete;
  Backup& operator=(const Backup&) = delete;
  ~Backup();

  /// False when the file is not what it was; the backup then stays.
  bool restore() noexcept;

  const fs::path& path() const { return path_; }

 private:
  fs::path file_;
  fs::path path_;
  bool kept_ = false;
};

}  // namespace tool

// Removing the files of styles.
#pragma once

#include <kostyle/kostyle.h>

#include <chrono>
#include <string>

#include "basics/paths.h"

namespace tool {

/// The file of a style as it was found: what is shown to the user is what is removed.
class RemovableFile {
 public:
  /// Throws Refused when the file cannot be read, or another style stands in it by now.
  explicit RemovableFile(KoStyleStyle* style);

  /// One line for the user.
  const std::string& shown() const { return shown_; }

  /// Throws Refused when the file is not as it was found, or the system refuses. Other programs that
  /// use it are waited for up to the limit.
  void remove(std::chrono::milliseconds limit) const;

 private:
  fs::path path_;
  std::string bytes_;
  std::string shown_;
};

}  // namespace tool

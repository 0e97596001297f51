// One style file read by itself, wherever it lies and whatever lies beside it.
#pragma once

#include <kostyle/kostyle.h>

#include <memory>

#include "basics/paths.h"
#include "reading/manager.h"

namespace tool {

class StyleFile {
 public:
  /// Throws Refused when the file cannot be read or holds no valid style. The directory is empty.
  explicit StyleFile(const fs::path& path, const TemporaryDirectory& directory = TemporaryDirectory());

  KoStyleStyle* style() const { return manager_->styles().front(); }

 private:
  std::unique_ptr<Manager> manager_;
};

}  // namespace tool

// One style file read by itself, wherever it lies and whatever lies beside it.
#pragma once

#include <kostyle/kostyle.h>

#include <memory>

#include "manager.h"
#include "paths.h"

namespace tool {

class StyleFile {
 public:
  /// Throws Refused when the file cannot be read or holds no valid style.
  explicit StyleFile(const fs::path& path);

  KoStyleStyle* style() const { return manager_->styles().front(); }

 private:
  std::unique_ptr<Manager> manager_;
};

}  // namespace tool

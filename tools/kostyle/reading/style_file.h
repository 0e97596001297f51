// One style file read by itself, wherever it lies and whatever lies beside it.
#pragma once

#include <kostyle/kostyle.h>

#include <memory>
#include <string_view>

#include "basics/paths.h"
#include "reading/manager.h"

namespace tool {

class StyleFile {
 public:
  /// Throws Refused when the file cannot be read or holds no valid style. The directory is empty.
  explicit StyleFile(const fs::path& path, const TemporaryDirectory& directory = TemporaryDirectory());

  /// The same for what a file holds, or is to hold; the path is for messages.
  StyleFile(const fs::path& path, std::string_view bytes,
            const TemporaryDirectory& directory = TemporaryDirectory());

  KoStyleStyle* style() const { return manager_->styles().front(); }

 private:
  void read(const fs::path& path, const fs::path& directory);

  std::unique_ptr<Manager> manager_;
};

}  // namespace tool

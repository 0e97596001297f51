// The library, reading a directory of style files.
#pragma once

#include <optional>

#include "host.h"

namespace bench {

class Library {
 public:
  explicit Library(const std::filesystem::path& directory) : directory_(pathText(directory)) {}

  std::size_t read() {
    host_.emplace(directory_);
    return host_->read();
  }

  KoStyleManager* manager() const { return host_->manager(); }

 private:
  Text directory_;
  std::optional<Host> host_;
};

}  // namespace bench

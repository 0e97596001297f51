// A manager, as a host has it.
#pragma once

#include <kostyle/kostyle.h>

#include <filesystem>
#include <stdexcept>

#include "text.h"

namespace bench {

/// Owns a manager whose system and user directory is `directory`.
class Host {
 public:
  explicit Host(const std::filesystem::path& directory) : Host(pathText(directory)) {}

  explicit Host(const Text& directory) {
    static int hosts = 0;
    const Text appID = toText(std::to_string(++hosts));  // each has a manager of its own
    const KoStyleChar* const path = directory.c_str();
    manager_ = CreateStyleManager(appID.c_str(), path, path, nullptr, 0, nullptr, 0, nullptr);
    if (!manager_) throw std::runtime_error("no manager");
  }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host() { StyleManager_destroy(manager_); }

  KoStyleManager* manager() const { return manager_; }

  /// Reads the system styles; returns their number.
  std::size_t read() const {
    if (StyleManager_readSystemStyles(manager_) != KOSTYLE_OK) throw std::runtime_error("not read");
    return StyleManager_numSystemStyle(manager_);
  }

 private:
  KoStyleManager* manager_;
};

}  // namespace bench

// What replacing a file asks of the operating system. What it refuses throws Refused, with its reason.
#pragma once

#include <memory>
#include <string_view>
#include <system_error>

#include "basics/paths.h"

namespace tool {

/// Where a path leads: a symbolic link's target, or else the path.
fs::path throughLinks(const fs::path& path);

/// Throws Refused unless the user may write the file.
void requireWriteAccess(const fs::path& file);

/// Writes a new file as far as the device. It gets the mode, the owner and whatever else the system
/// keeps about `like`, when there is such a file. Leaves nothing when it throws.
void writeNewFile(const fs::path& path, std::string_view bytes, const fs::path& like);

/// Gives a file the name of another, whose place it takes at once.
std::error_code moveOver(const fs::path& from, const fs::path& to);

/// Gives a file a name that nothing has yet; an error when something does.
std::error_code moveToNewName(const fs::path& from, const fs::path& to);

/// Whether an error may pass by itself: another program has the file open, which some systems mind.
bool isInUse(std::error_code error);

/// A file that one process at a time holds. The system lets go of it when the process ends, however it
/// ends: what one that is gone leaves behind keeps nobody waiting.
class HeldFile {
 public:
  /// Makes the file when it is missing. Check isHeld() then.
  explicit HeldFile(const fs::path& path);
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

  /// Deletes the file, unless it holds something and so is none of ours.
  ~HeldFile();

  bool isHeld() const { return open_ != nullptr; }

 private:
  struct Open;

  fs::path path_;
  std::unique_ptr<Open> open_;
};

}  // namespace tool

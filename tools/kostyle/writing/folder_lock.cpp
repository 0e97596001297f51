#include "writing/folder_lock.h"

#include <fmt/core.h>

#include "basics/failure.h"
#include "writing/waiting.h"

namespace tool {

FolderLock::FolderLock(const fs::path& folder, std::chrono::milliseconds limit) {
  const fs::path path = folder / name;
  Waiting waiting(limit, fmt::format("waiting for another kostyle that has {}", shownPath(path)));
  while (!(file_ = std::make_unique<HeldFile>(path))->isHeld())
    if (!waiting.again())
      throw Refused(
          fmt::format("{}: another kostyle is changing files of this folder and is not done "
                      "after {} s",
                      shownPath(path), limit.count() / 1000));
}

// Whether another one holds the file or not, it could be made.
void requireWritableFolder(const fs::path& folder) { const HeldFile probe(folder / FolderLock::name); }

}  // namespace tool

#include "reading/style_file.h"

#include <fmt/core.h>

#include "basics/failure.h"
#include "basics/files.h"
#include "reading/reasons.h"

namespace tool {
namespace {

constexpr const char* copyName = "style.kostyle";

}  // namespace

StyleFile::StyleFile(const fs::path& path, const TemporaryDirectory& directory)
    : StyleFile(path, readBytes(path), directory) {}

StyleFile::StyleFile(const fs::path& path, std::string_view bytes,
                     const TemporaryDirectory& directory) {
  writeCopy(directory.path() / copyName, bytes, path);
  read(path, directory.path());
}

// A copy alone in a directory is read in place of the file.
void StyleFile::read(const fs::path& path, const fs::path& directory) {
  StyleDirectories directories;
  directories.system = directory;
  try {
    manager_ = std::make_unique<Manager>(directories);
  } catch (const NotEnoughMemory&) {  // which would name the copy
    throw NotEnoughMemory(fmt::format("{}: there is not enough memory for the file", shownPath(path)));
  }
  const auto results = manager_->results();
  if (results.empty()) throw Refused(fmt::format("{}: the file cannot be opened", shownPath(path)));
  if (manager_->styles().empty()) throw Refused(refusal(shownPath(path), results.front(), {}));
}

}  // namespace tool

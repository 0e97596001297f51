#include "reading/style_file.h"

#include <fmt/format.h>

#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "reading/reasons.h"

namespace tool {
namespace {

constexpr const char* copyName = "style.kostyle";

}  // namespace

StyleFile::StyleFile(const fs::path& path, const TemporaryDirectory& directory) {
  std::error_code error;
  fs::copy_file(path, directory.path() / copyName, error);
  if (error) throw Refused(fmt::format("{}: {}", shownPath(path), error.message()));
  read(path, directory.path());
}

StyleFile::StyleFile(const fs::path& path, std::string_view bytes,
                     const TemporaryDirectory& directory) {
  writeCopy(directory.path() / copyName, bytes, path);
  read(path, directory.path());
}

// A copy alone in a directory is read in place of the file.
void StyleFile::read(const fs::path& path, const fs::path& directory) {
  StyleDirectories directories;
  directories.system = directory;
  manager_ = std::make_unique<Manager>(directories);
  const auto results = manager_->results();
  if (results.empty()) throw Refused(fmt::format("{}: the file cannot be opened", shownPath(path)));
  if (manager_->styles().empty())
    throw Refused(fmt::format("{}: {}", shownPath(path), reason(results.front())));
}

}  // namespace tool

#include "reading/style_file.h"

#include <fmt/format.h>

#include <system_error>

#include "basics/failure.h"
#include "reading/reasons.h"

namespace tool {

// A copy alone in a directory is read in place of the file.
StyleFile::StyleFile(const fs::path& path, const TemporaryDirectory& directory) {
  std::error_code error;
  fs::copy_file(path, directory.path() / "style.kostyle", error);
  if (error) throw Refused(fmt::format("{}: {}", shownPath(path), error.message()));
  StyleDirectories directories;
  directories.system = directory.path();
  manager_ = std::make_unique<Manager>(directories);
  const auto results = manager_->results();
  if (results.empty()) throw Refused(fmt::format("{}: the file cannot be opened", shownPath(path)));
  if (manager_->styles().empty())
    throw Refused(fmt::format("{}: {}", shownPath(path), reason(results.front())));
}

}  // namespace tool

#include "writing/removing.h"

#include <fmt/core.h>

#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "basics/text.h"
#include "reading/style_file.h"
#include "writing/folder_lock.h"
#include "writing/system_files.h"
#include "writing/waiting.h"

namespace tool {

RemovableFile::RemovableFile(KoStyleStyle* style)
    : path_(pathOf(TextView(Style_path(style)))), bytes_(readBytes(path_)) {
  if (TextView(Style_id(StyleFile(path_, bytes_).style())) != Style_id(style))
    throw Refused(fmt::format("{}: another style stands in the file by now", shownPath(path_)));
  shown_ = fmt::format("{} ({}), {}", inQuotes(toUtf8(Style_name(style))),
                       printable(toUtf8(Style_id(style))), printable(shownPath(path_)));
}

void RemovableFile::remove(std::chrono::milliseconds limit) const {
  if (!fs::is_symlink(path_)) requireWriteAccess(path_);
  const FolderLock lock(path_.parent_path(), limit);
  if (readBytes(path_) != bytes_)
    throw Refused(
        fmt::format("{}: left as it is, because it has changed since it was read", shownPath(path_)));
  Waiting waiting(limit, fmt::format("waiting for a program that has {} open", shownPath(path_)));
  std::error_code error;
  while (!fs::remove(path_, error) && isInUse(error) && waiting.again()) {
  }
  if (error)
    throw Refused(fmt::format("{}: the file cannot be removed: {}", shownPath(path_), error.message()));
}

}  // namespace tool
